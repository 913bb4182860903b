#include "arith/whole_divisor.h"

#include <string_view>
#include <utility>

#include "arith/do_operation.h"
#include "arith/round_function.h"
#include "host/platform.h"
#include "text/clean_up_number.h"
#include "text/format_result.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The greatest whole number that is not above a plain number.
NumberText Floor(const NumberText& number) {
  const auto direction = Is_Positive(number) ? Rounding_Direction::down : Rounding_Direction::up;
  return Round_Function(number, 0, direction, {});
}

// What a division leaves, with the sign of the divisor. It is cut twice: as a difference, and to
// one digit less as a result.
NumberText Remainder(const NumberText& dividend, const NumberText& divisor, double maxSD) {
  constexpr double spare = 5;
  const auto length = static_cast<double>(divisor.size());
  const NumberText quotient = Intermediate(operation::divide, dividend, divisor,
                                           static_cast<double>(dividend.size()) + length + spare);
  const NumberText whole = Floor(quotient);
  const NumberText product = Intermediate(operation::multiply, divisor, whole,
                                          length + static_cast<double>(whole.size()) + spare);
  type_CleanUp clean =
      Clean_Up_Number(Intermediate(operation::subtract, dividend, product, maxSD), false, false);
  type_Restrictionator options;
  options.maxSD = maxSD;
  return Format_Result(std::move(clean.NumClean), clean.DecPos, Is_Positive(divisor), options,
                       false);
}

}  // namespace

Common_Divisor Divisor_Of(const NumberText& A, const NumberText& B, double maxSD) {
  NumberText X = A;
  NumberText Y = B;
  for (bool is_first = true; X != "0"; is_first = false) {
    Yield();
    NumberText remainder = Remainder(Y, X, maxSD);
    if (is_first && remainder == "0") {
      remainder = Remainder(X, Y, maxSD);
      if (remainder == "0") return {true, {}};
    }
    if (Has_Token_Mark(remainder)) return {false, std::move(remainder)};
    Y = std::exchange(X, std::move(remainder));
  }
  return {false, NumberText(Strip_Sign(Y))};
}

}  // namespace quorvex
