// A number read once, to be compared with many others.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

#include "expects.h"
#include "text/operand.h"

namespace quorvex {

/// A number as comparisons see it: its sign, its digits, and where the first of them stands. Zeros
/// around the digits are counted and not kept, those that an exponent stands for among them, so
/// that many huge numbers can be held at once.
class Comparable_Number {
 public:
  /// Reads a number; the text must outlive it. False for what `Compare_Numbers` takes for no
  /// number, a token among it. Fails as `Read_For_Comparison` does.
  bool read(std::string_view text);

  /// True if the text was a number. One that can be added but not compared is read as false.
  bool is_number() const { return operand_ && operand_->is_number(); }

  /// -1, 0 or 1.
  int sign() const { return sign_; }

  // Of a number that is not zero.

  /// The magnitude is a fraction of the digits times ten to this power.
  std::int64_t power() const {
    Expects(sign_ != 0);
    return power_;
  }

  /// The digits, in two pieces: the first begins with no zero, and the last ends with none.
  std::string_view first_digits() const {
    Expects(sign_ != 0);
    return first_;
  }
  std::string_view more_digits() const {
    Expects(sign_ != 0);
    return more_;
  }

 private:
  std::optional<Operand> operand_;
  int sign_ = 0;
  std::int64_t power_ = 0;
  std::string_view first_;
  std::string_view more_;
};

/// The order by value.
std::strong_ordering operator<=>(const Comparable_Number& a, const Comparable_Number& b);

}  // namespace quorvex
