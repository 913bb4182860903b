// How the two values of a square root's iteration come to an end.
#pragma once

#include <cstddef>
#include <string_view>

#include "arith/operation/step_number.h"
#include "host/host_value.h"
#include "text/decimal.h"

namespace quorvex {

/// False where two values above 0 differ in so many characters of their texts, however these are
/// rounded there: the texts need not be looked at then. A separator and a zero before it are
/// characters, too. Zeros behind those of a negative number are, so that all of its digits may be
/// beyond.
bool May_Be_Alike(const Step_Number& a, const Step_Number& b, double characters);

/// A magnitude as its text shows it, the separator taken out: "0012" behind which three stand for
/// 0.012. Lengths and places are those of the text, in characters.
class Shown_Number {
 public:
  explicit Shown_Number(const Step_Number& number);

  std::size_t length() const { return digits_.size() + (has_separator_ ? 1 : 0); }
  std::size_t integer_digits() const { return integer_digits_; }
  std::string_view digits() const { return digits_; }

  /// How many of the first `characters` are digits.
  std::size_t digits_in(std::size_t characters) const {
    return characters - (has_separator_ && characters > integer_digits_ ? 1 : 0);
  }

  /// The character at a place within the text; the separator as a point.
  char at(std::size_t place) const;

  /// The zeros between separator and first other digit of a number below 1.
  std::size_t zeros_behind_separator() const;

  /// Integer digits that are cut away come back as zeros.
  void cut(std::size_t characters);

  Decimal decimal() &&;

 private:
  NumberText digits_;
  std::size_t integer_digits_ = 0;
  bool has_separator_ = false;
};

/// The quotient and the mean of a round.
class Root_Pair {
 public:
  /// `maxSD` is one more than the caller's limit.
  Root_Pair(const Step_Number& quotient, const Step_Number& mean, double maxSD);

  /// True if the two agree as far as the limit asks; the quotient is cut there. How they end says
  /// something only where they differ behind all digits of the limit: others end alike by chance,
  /// as 1 and 1.00005 do on the way to a root of 1.0001.
  bool settle();

  /// Ends neighbours that never meet, and have the root between them: the quotient becomes the mean
  /// if one of them is the other one rounded to fewer characters, the shorter of the two, and is
  /// cut at the limit otherwise.
  void part();

  /// What the two have come to.
  Decimal root() && { return std::move(quotient_).decimal(); }

  bool is_empty() const { return quotient_.length() == 0 || mean_.length() == 0; }

 private:
  bool round_longer();
  bool agree_to(std::size_t characters) const;
  bool goes_on_behind() const;
  std::size_t kept_characters() const;
  bool is_behind(std::size_t digits) const;

  Shown_Number quotient_;
  Shown_Number mean_;
  double maxSD_;
};

}  // namespace quorvex
