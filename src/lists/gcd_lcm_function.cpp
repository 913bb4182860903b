#include "lists/gcd_lcm_function.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "arith/fractions/reduce_fraction.h"
#include "arith/operation/steps.h"
#include "host/run_time_failure.h"
#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "text/clean_up_number.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/round_function.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The text that stands for an element; nothing for one that is passed over.
std::optional<NumberText> Element_Of(std::string_view text, Element_Form form) {
  if (form == Element_Form::whole) return NumberText(text);
  NumberText whole = Round_Function(text, 0, Rounding_Direction::down, {});
  if (Has_Token_Mark(whole)) return std::nullopt;
  return whole;
}

// What the two are reduced by; nothing where one of them is no number, which is passed over. A step
// that fails for any other reason must not pass over an element: the result would be a wrong
// number.
std::optional<NumberText> Common_Divisor(const NumberText& running, const NumberText& element) {
  type_Fraction fraction = Reduce_Fraction(running, element, {.simplify_signs = true});
  if (!Has_Token_Mark(fraction.Reduced_By)) return std::move(fraction.Reduced_By);
  if (Clean_Up_Number(running, true, true).IsError || Clean_Up_Number(element, true, true).IsError)
    return std::nullopt;
  throw Run_Time_Failure(Failure_Number::invalid_call, "A common divisor can't be formed.");
}

// The multiple as the limit allows it, but never cut: it has no more significant digits than both
// numbers together, and neither has their product.
NumberText Common_Multiple(const NumberText& running, const NumberText& element,
                           const NumberText& reduced_by, double limit) {
  const double digits = std::max(limit, static_cast<double>(running.size() + element.size()));
  const Steps steps(digits);
  const Step_Number product = steps.product(Step_Number(running), Step_Number(element));
  const Step_Number divisor(reduced_by);
  if (product.is_zero() && divisor.is_zero()) return "0";
  return steps.quotient(product, divisor).text();
}

// Folds a list with `join`, which changes the running value by an element. Unlike other lists these
// begin with the default limit.
template <typename Join>
NumberText Fold(const List& list, Element_Form form, bool refuses_negatives, const Join& join) {
  List_Options options;
  options.msd = Default_MaxSD();
  NumberText running;
  bool refused = false;
  Walk_List(list, options, [&](const List_Element& each) {
    auto element = Element_Of(each.text, form);
    if (!element) return Walk::on;
    refused = refuses_negatives && !Is_Positive(*element);
    if (refused) return Walk::end;
    if (running.empty()) {
      running = std::move(*element);
    } else {
      join(running, *element, options.msd);
    }
    return Walk::on;
  });
  return refused ? NumberText(num_token) : Finish_List(std::move(running), options);
}

}  // namespace

NumberText GCD_Function(const List& list, Element_Form form) {
  const bool refuses_negatives = form == Element_Form::truncated;
  return Fold(list, form, refuses_negatives,
              [](NumberText& running, const NumberText& element, double) {
                if (auto divisor = Common_Divisor(running, element)) running = *std::move(divisor);
              });
}

NumberText LCM_Function(const List& list, Element_Form form) {
  return Fold(list, form, true, [](NumberText& running, const NumberText& element, double limit) {
    const auto divisor = Common_Divisor(running, element);
    if (divisor) running = Common_Multiple(running, element, *divisor, limit);
  });
}

}  // namespace quorvex
