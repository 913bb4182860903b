// An operand cleaned up for arithmetic: its sign, and the digits of its magnitude.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/digit_runs.h"

namespace quorvex {

/// Digits left and right of the decimal separator, as views into some text; either may be empty.
struct Decimal_Parts {
  std::string_view integer;
  std::string_view fraction;
};

/// Reads a decimal separator and the digits behind it as the fraction. False for any other text.
bool Split_Fraction(std::string_view text, Decimal_Parts& parts);

/// Cuts a text of digits with at most one decimal separator into its parts. False for any other
/// text, whose parts mean nothing.
inline bool Split_Decimal(std::string_view text, Decimal_Parts& parts) {
  const std::size_t integer = Count_Digits(text);
  parts.integer = text.substr(0, integer);
  return integer == text.size() || Split_Fraction(text.substr(integer), parts);
}

/// Digits with at most one decimal separator and at most a leading minus, as most numbers are
/// written.
struct Plain_Number {
  bool negative = false;
  Decimal_Parts parts;
};

/// Reads a plain number that has a digit. False for any other text, which may be a number too.
inline bool Read_Plain(std::string_view text, Plain_Number& number) {
  number.negative = text.starts_with('-');
  if (number.negative) text.remove_prefix(1);
  const std::size_t integer = Count_Digits(text);
  number.parts = {text.substr(0, integer), {}};
  if (integer == text.size()) return integer != 0;
  return Split_Fraction(text.substr(integer), number.parts) &&
         !(integer == 0 && number.parts.fraction.empty());
}

/// The order of two magnitudes by value, whatever zeros stand around them.
std::strong_ordering Compare_Magnitudes(const Decimal_Parts& a, const Decimal_Parts& b);

/// True if all digits are zeros, or there are none.
bool Is_Zero(const Decimal_Parts& parts);

/// The digits of a number without its separator, as a whole number: no leading zeros, "0" for 0.
/// They are a view of the parts where they stand in one piece there.
class Whole_Digits {
 public:
  /// As if the number had so many decimals: zeros behind it, or digits of its fraction left out.
  /// Fails with out_of_memory where there is no room for the zeros.
  Whole_Digits(const Decimal_Parts& parts, std::size_t decimals);
  explicit Whole_Digits(const Decimal_Parts& parts) : Whole_Digits(parts, parts.fraction.size()) {}
  Whole_Digits(const Whole_Digits&) = delete;
  Whole_Digits& operator=(const Whole_Digits&) = delete;

  std::string_view digits() const { return digits_; }

 private:
  std::string joined_;
  std::string_view digits_;
};

/// How exponents are written out: with all their zeros; with one that stands for any number of
/// them, which is enough to tell a number from other text; or not at all, as a power of ten beside
/// the digits of the mantissa. A mantissa with marks among its digits is always written out.
enum class Exponent_Zeros { all, one, counted };

/// Number text after clean-up: quote marks, currency symbol and thousands separators taken out, E
/// notation written as decimals, the sign set apart.
///
/// A plain number (digits, at most one separator, at most a leading minus) is recognised in one
/// pass and not copied: the text must outlive the operand. The constructor fails as
/// `Expand_Exponent` does.
class Operand {
 public:
  explicit Operand(std::string_view text, Exponent_Zeros zeros = Exponent_Zeros::all);
  Operand(const Operand&) = delete;
  Operand& operator=(const Operand&) = delete;

  bool positive() const { return positive_; }

  /// The text behind the sign, whatever it holds.
  std::string_view magnitude() const { return magnitude_; }

  /// True if the magnitude is made up of digits and at most one separator.
  bool is_number() const { return is_number_; }

  /// The digits of a number; of other text they mean nothing.
  const Decimal_Parts& parts() const { return parts_; }

  /// What the parts are to be multiplied by; 0 unless the zeros of an exponent are counted.
  std::int64_t power_of_ten() const { return power_of_ten_; }

  /// True if the text needed no clean-up.
  bool was_plain() const { return was_plain_; }

 private:
  void Clean_Up(std::string_view text, Exponent_Zeros zeros);

  std::string cleaned_;  // where clean-up had to write
  std::string_view magnitude_;
  Decimal_Parts parts_;
  std::int64_t power_of_ten_ = 0;
  bool positive_ = true;
  bool is_number_ = false;
  bool was_plain_ = false;
};

}  // namespace quorvex
