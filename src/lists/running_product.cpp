#include "lists/running_product.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/running_sum.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/round_to_length.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

struct Whole_Number {
  NumberText digits;  // no zeros at either end; empty for zero
  std::int64_t power_of_ten = 0;
};

Whole_Number Whole(const Decimal_Parts& parts) {
  Whole_Number whole;
  whole.digits.reserve(parts.integer.size() + parts.fraction.size());
  whole.digits.append(parts.integer).append(parts.fraction);
  const std::size_t behind = Count_Trailing_Zeros(whole.digits);
  whole.power_of_ten =
      static_cast<std::int64_t>(behind) - static_cast<std::int64_t>(parts.fraction.size());
  whole.digits.resize(whole.digits.size() - behind);
  whole.digits.erase(0, Count_Leading_Zeros(whole.digits));
  return whole;
}

}  // namespace

void Running_Product::multiply(std::string_view element, double msd) {
  std::optional<Operand> operand;
  const bool is_number =
      With_Handler_But_For_Memory([&] { return operand.emplace(element).is_number(); },
                                  [](const Run_Time_Failure&) { return false; });
  if (!is_number || zero_) return;
  Whole_Number factor = Whole(operand->parts());
  if (factor.digits.empty()) {
    zero_ = true;
    return;
  }
  if (partial_.empty() && !Can_Multiply()) return;
  power_of_ten_ += factor.power_of_ten;
  if (!operand->positive()) negative_ = !negative_;
  digits_ += factor.digits.size();
  push(std::move(factor.digits));
  if (digits_ > Digits_Never_Cut(msd)) cut(msd);
}

// Each product keeps two digits more than the limit.
void Running_Product::cut(double msd) {
  join_all();
  NumberText& product = partial_.front();
  product = Round_To_Length(std::move(product), std::min(msd, maximum_digits) + 2);
  const std::size_t zeros = Count_Trailing_Zeros(product);
  power_of_ten_ += static_cast<std::int64_t>(zeros);
  product.resize(product.size() - zeros);
  digits_ = product.size();
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
    throw Run_Time_Failure(Failure_Number::out_of_memory,
                           "There is not enough memory for the product of the list.");
  }
}

NumberText Running_Product::text() {
  if (zero_) return "0";
  join_all();
  NumberText digits = partial_.empty() ? NumberText("1") : partial_.front();
  double position = 1;
  if (power_of_ten_ >= 0) {
    Require_Memory(texts_at_once * static_cast<double>(power_of_ten_));
    digits.append(static_cast<std::size_t>(power_of_ten_), '0');
  } else {
    position -= static_cast<double>(power_of_ten_);
  }
  type_Restrictionator options;
  options.maxSD = maximum_digits;
  return Format_Result(std::move(digits), position, !negative_, options, true);
}

}  // namespace quorvex
