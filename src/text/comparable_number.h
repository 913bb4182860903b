// A number read once, to be compared with many others.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

#include "text/operand.h"

namespace quorvex {

/// A number as comparisons see it: its sign, its digits, and where the first of them stands. Zeros
/// around the digits are counted and not kept, those that an exponent stands for among them, so
/// that many huge numbers can be held at once. The digits are a view.
struct Digits_And_Power {
  int sign = 0;  // -1, 0 or 1

  // Of a number that is not zero: the magnitude is a fraction of the digits times ten to `power`.
  // The first piece begins with no zero, and the last ends with none.
  std::int64_t power = 0;
  std::string_view first;
  std::string_view more;
};

/// The order by value.
std::strong_ordering operator<=>(const Digits_And_Power& a, const Digits_And_Power& b);

/// What holds such a number, and the text of its digits where they had to be written anew.
class Comparable_Number {
 public:
  /// Reads a number; the text must outlive it. False for what `Compare_Numbers` takes for no
  /// number, a token among it. Fails as `Read_For_Comparison` does.
  bool read(std::string_view text);

  /// True if the text was a number. One that can be added but not compared is read as false.
  bool is_number() const { return is_plain_ || (operand_ && operand_->is_number()); }

  /// True if the digits are those of the text that was read, and outlive this.
  bool is_plain() const { return is_plain_; }

  const Digits_And_Power& value() const { return value_; }

 private:
  void take(const Decimal_Parts& parts, bool positive, std::int64_t power_of_ten);

  Digits_And_Power value_;
  bool is_plain_ = false;
  std::optional<Operand> operand_;  // of what is not plain
};

inline std::strong_ordering operator<=>(const Comparable_Number& a, const Comparable_Number& b) {
  return a.value() <=> b.value();
}

}  // namespace quorvex
