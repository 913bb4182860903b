#include "text/comparable_number.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text/compare_numbers.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

// Whether anything is left to compare. The next piece comes when the first is used up.
bool Has_More(std::string_view& first, std::string_view& more) {
  if (first.empty()) first = std::exchange(more, {});
  return !first.empty();
}

// The order of two fractions that end with no zeros.
std::strong_ordering Compare_Digits(const Digits_And_Power& a, const Digits_And_Power& b) {
  std::string_view a_first = a.first;
  std::string_view a_more = a.more;
  std::string_view b_first = b.first;
  std::string_view b_more = b.more;
  for (;;) {
    const bool a_goes_on = Has_More(a_first, a_more);
    const bool b_goes_on = Has_More(b_first, b_more);
    if (!a_goes_on || !b_goes_on) return a_goes_on <=> b_goes_on;
    const std::size_t both = std::min(a_first.size(), b_first.size());
    if (const auto order = a_first.substr(0, both) <=> b_first.substr(0, both);
        std::is_neq(order)) {
      return order;
    }
    a_first.remove_prefix(both);
    b_first.remove_prefix(both);
  }
}

}  // namespace

bool Comparable_Number::read(std::string_view text) {
  Plain_Number plain;
  is_plain_ = Read_Plain(text, plain);
  if (is_plain_) {
    take(plain.parts, !plain.negative, 0);
    return true;
  }
  if (!Read_For_Comparison(text, operand_, Exponent_Zeros::counted)) return false;
  take(operand_->parts(), operand_->positive(), operand_->power_of_ten());
  return true;
}

void Comparable_Number::take(const Decimal_Parts& parts, bool positive, std::int64_t power_of_ten) {
  std::string_view first = parts.integer;
  std::string_view more = parts.fraction;
  if (first.starts_with('0')) first.remove_prefix(Count_Leading_Zeros(first));
  std::int64_t power = power_of_ten + static_cast<std::int64_t>(first.size());
  if (first.empty()) {
    const std::size_t zeros = Count_Leading_Zeros(more);
    power -= static_cast<std::int64_t>(zeros);
    first = std::exchange(more, {}).substr(zeros);
  }
  if (more.ends_with('0')) more.remove_suffix(Count_Trailing_Zeros(more));
  if (more.empty() && first.ends_with('0')) first.remove_suffix(Count_Trailing_Zeros(first));
  const int sign = positive ? 1 : -1;
  value_ = {first.empty() ? 0 : sign, power, first, more};
}

std::strong_ordering operator<=>(const Digits_And_Power& a, const Digits_And_Power& b) {
  if (a.sign != b.sign) return a.sign <=> b.sign;
  if (a.sign == 0) return std::strong_ordering::equal;
  const Digits_And_Power& lesser = a.sign > 0 ? a : b;
  const Digits_And_Power& greater = a.sign > 0 ? b : a;
  if (lesser.power != greater.power) return lesser.power <=> greater.power;
  return Compare_Digits(lesser, greater);
}

}  // namespace quorvex
