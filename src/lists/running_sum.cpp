#include "lists/running_sum.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "arith/digits/subtract_digits.h"
#include "arith/do_operation.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

Decimal_Parts Without_Leading_Zeros(Decimal_Parts parts) {
  parts.integer.remove_prefix(Count_Leading_Zeros(parts.integer));
  return parts;
}

}  // namespace

std::size_t Digits_Never_Cut(double msd) {
  if (!(msd > 0)) return 0;
  return static_cast<std::size_t>(std::min(msd, maximum_digits)) + 1;
}

bool Running_Sum::add(std::string_view element, double msd) {
  if (in_chain_) return add_in_chain(element, msd);
  bool is_number = false;
  const bool was_in_place = With_Handler(
      [&] {
        const Operand operand(element);
        is_number = operand.is_number();
        return !is_number || add_in_place(operand, msd);
      },
      [&](const Run_Time_Failure&) {
        is_number = false;
        return true;
      });
  return was_in_place ? is_number : add_in_chain(element, msd);
}

// False if a limit might cut the sum, or the one before it.
bool Running_Sum::add_in_place(const Operand& element, double msd) {
  const Decimal_Parts& parts = element.parts();
  const std::size_t integer =
      std::max({positive_.integer_digits(), negative_.integer_digits(), parts.integer.size()});
  const std::size_t fraction =
      std::max({positive_.fraction_digits(), negative_.fraction_digits(), parts.fraction.size()});
  if (integer + 1 + fraction > Digits_Never_Cut(msd)) return false;
  (element.positive() ? positive_ : negative_).add(parts);
  return true;
}

bool Running_Sum::add_in_chain(std::string_view element, double msd) {
  if (!in_chain_) {
    chain_ = text();
    in_chain_ = true;
  }
  type_Restrictionator options;
  options.maxSD = std::min(msd, maximum_digits);
  NumberText sum =
      Do_Operation_On_Texts(operation::add, chain_, element, options, {.intermediate = true});
  if (Has_Token_Mark(sum)) return false;
  chain_ = std::move(sum);
  return true;
}

NumberText Running_Sum::text() {
  if (in_chain_) return chain_;
  const Decimal_Parts positive = Without_Leading_Zeros(positive_.parts());
  const Decimal_Parts negative = Without_Leading_Zeros(negative_.parts());
  type_Subtraction sum = Subtract_Decimals(positive, negative);
  const std::size_t fraction = std::max(positive.fraction.size(), negative.fraction.size());
  type_Restrictionator options;
  options.maxSD = maximum_digits;
  return Format_Result(
      {std::move(sum.Difference), -static_cast<std::int64_t>(fraction), sum.NegativeSubtraction},
      options, true);
}

}  // namespace quorvex
