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
std::strong_ordering Compare_Digits(const Comparable_Number& a, const Comparable_Number& b) {
  std::string_view a_first = a.first_digits();
  std::string_view a_more = a.more_digits();
  std::string_view b_first = b.first_digits();
  std::string_view b_more = b.more_digits();
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
  if (!Read_For_Comparison(text, operand_, Exponent_Zeros::counted)) return false;
  first_ = operand_->parts().integer;
  more_ = operand_->parts().fraction;
  first_.remove_prefix(Count_Leading_Zeros(first_));
  power_ = operand_->power_of_ten() + static_cast<std::int64_t>(first_.size());
  if (first_.empty()) {
    const std::size_t zeros = Count_Leading_Zeros(more_);
    power_ -= static_cast<std::int64_t>(zeros);
    first_ = std::exchange(more_, {}).substr(zeros);
  }
  more_.remove_suffix(Count_Trailing_Zeros(more_));
  if (more_.empty()) first_.remove_suffix(Count_Trailing_Zeros(first_));
  sign_ = 0;
  if (!first_.empty()) sign_ = operand_->positive() ? 1 : -1;
  return true;
}

std::strong_ordering operator<=>(const Comparable_Number& a, const Comparable_Number& b) {
  if (a.sign() != b.sign()) return a.sign() <=> b.sign();
  if (a.sign() == 0) return std::strong_ordering::equal;
  const Comparable_Number& lesser = a.sign() > 0 ? a : b;
  const Comparable_Number& greater = a.sign() > 0 ? b : a;
  if (lesser.power() != greater.power()) return lesser.power() <=> greater.power();
  return Compare_Digits(lesser, greater);
}

}  // namespace quorvex
