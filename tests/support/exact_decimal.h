// Exact decimals in the plainest way there is: one digit at a time, as taught at school. Shares no
// code with the engine, whose results it judges.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex {

class Exact_Decimal {
 public:
  /// Reads digits with at most one "." and at most a leading "-".
  explicit Exact_Decimal(std::string_view text) {
    for (const char character : text) {
      if (character == '-') {
        negative_ = true;
      } else if (character == '.') {
        in_fraction_ = true;
      } else {
        digits_.insert(digits_.end(), character - '0');
        if (in_fraction_) ++scale_;
      }
    }
    std::reverse(digits_.begin(), digits_.end());
  }

  Exact_Decimal operator-() const {
    Exact_Decimal opposite = *this;
    opposite.negative_ = !negative_;
    return opposite;
  }

  Exact_Decimal operator+(Exact_Decimal b) const {
    Exact_Decimal a = *this;
    Align(a, b);
    if (a.negative_ == b.negative_) return a.plus(b);
    return Is_Less(a.digits_, b.digits_) ? b.minus(a) : a.minus(b);
  }

  /// Rounded to so many significant digits, half up in magnitude by the first dropped digit.
  Exact_Decimal rounded(std::size_t count) const {
    std::size_t length = digits_.size();
    while (length > 0 && digits_[length - 1] == 0) --length;
    if (length <= count) return *this;
    const std::size_t dropped = length - count;
    Exact_Decimal result = *this;
    int carry = digits_[dropped - 1] >= 5 ? 1 : 0;
    std::fill_n(result.digits_.begin(), dropped, 0);
    result.digits_.push_back(0);
    for (std::size_t i = dropped; carry > 0; ++i) {
      result.digits_[i] += carry;
      carry = result.digits_[i] / 10;
      result.digits_[i] %= 10;
    }
    return result;
  }

  /// -1, 0 or 1.
  int sign() const {
    const bool is_zero =
        std::all_of(digits_.begin(), digits_.end(), [](int digit) { return digit == 0; });
    if (is_zero) return 0;
    return negative_ ? -1 : 1;
  }

  /// Without zeros that aren't needed: -0.5, 12, 0.
  std::string text() const {
    std::string integer;
    std::string fraction;
    for (std::size_t i = digits_.size(); i-- > 0;) {
      (i >= scale_ ? integer : fraction) += static_cast<char>('0' + digits_[i]);
    }
    while (integer.size() > 1 && integer.front() == '0') integer.erase(0, 1);
    while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
    if (integer.empty()) integer = "0";
    if (!fraction.empty()) integer += "." + fraction;
    return (sign() < 0 ? "-" : "") + integer;
  }

 private:
  using Digits = std::vector<int>;  // the lowest first

  static void Align(Exact_Decimal& a, Exact_Decimal& b) {
    Exact_Decimal& coarser = a.scale_ < b.scale_ ? a : b;
    const std::size_t scale = std::max(a.scale_, b.scale_);
    coarser.digits_.insert(coarser.digits_.begin(), scale - coarser.scale_, 0);
    coarser.scale_ = scale;
    const std::size_t length = std::max({a.digits_.size(), b.digits_.size(), scale + 1});
    a.digits_.resize(length);
    b.digits_.resize(length);
  }

  static bool Is_Less(const Digits& a, const Digits& b) {
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
  }

  Exact_Decimal plus(const Exact_Decimal& b) const {
    Exact_Decimal sum = *this;
    int carry = 0;
    for (std::size_t i = 0; i < digits_.size(); ++i) {
      const int digit = digits_[i] + b.digits_[i] + carry;
      sum.digits_[i] = digit % 10;
      carry = digit / 10;
    }
    sum.digits_.push_back(carry);
    return sum;
  }

  Exact_Decimal minus(const Exact_Decimal& b) const {
    Exact_Decimal difference = *this;
    int borrow = 0;
    for (std::size_t i = 0; i < digits_.size(); ++i) {
      const int digit = digits_[i] - b.digits_[i] - borrow;
      borrow = digit < 0 ? 1 : 0;
      difference.digits_[i] = digit + 10 * borrow;
    }
    return difference;
  }

  bool negative_ = false;
  bool in_fraction_ = false;
  Digits digits_;
  std::size_t scale_ = 0;
};

}  // namespace quorvex
