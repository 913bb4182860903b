#include "lists/running_product.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/running_sum.h"
#include "text/decimal.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/tokens.h"

namespace quorvex {

void Running_Product::multiply(std::string_view element, double msd) {
  std::optional<Operand> operand;
  const bool is_number = With_Handler([&] { return operand.emplace(element).is_number(); },
                                      [](const Run_Time_Failure&) { return false; });
  if (!is_number || zero_) return;
  Decimal factor = Significant_Digits(!operand->positive(), operand->parts());
  if (factor.digits == "0") {
    zero_ = true;
    return;
  }
  if (partial_.empty() && !Can_Multiply()) return;
  power_of_ten_ += factor.power_of_ten;
  negative_ = negative_ != factor.negative;
  digits_ += factor.digits.size();
  push(std::move(factor.digits));
  if (digits_ > Digits_Never_Cut(msd)) cut(msd);
}

// Each product keeps two digits more than the limit.
void Running_Product::cut(double msd) {
  join_all();
  Decimal product{std::move(partial_.front()), power_of_ten_};
  Strip_Zeros(product);
  Round(product, Digits_Of_Result(Up_To_Ceiling(msd)));
  partial_.front() = std::move(product.digits);
  power_of_ten_ = product.power_of_ten;
  digits_ = partial_.front().size();
}

void Running_Product::join_all() {
  while (partial_.size() > 1) join_last_two();
}

void Running_Product::push(NumberText digits) {
  partial_.push_back(std::move(digits));
  while (partial_.size() > 1 && partial_[partial_.size() - 2].size() < 2 * partial_.back().size()) {
    join_last_two();
  }
}

void Running_Product::join_last_two() {
  Yield();
  const NumberText last = std::move(partial_.back());
  partial_.pop_back();
  partial_.back() = Multiply_Digits(partial_.back(), last);
  if (Has_Token_Mark(partial_.back())) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "A product can't be formed.");
  }
}

NumberText Running_Product::text() {
  if (zero_) return "0";
  join_all();
  type_Restrictionator options;
  options.maxSD = maximum_digits;
  return Format_Result(
      {partial_.empty() ? NumberText("1") : partial_.front(), power_of_ten_, negative_}, options,
      true);
}

}  // namespace quorvex
