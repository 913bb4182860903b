// Numbers between the steps of a chain of operations, such as the terms and sums of a series.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "arith/limbs/limb_number.h"
#include "host/host_value.h"
#include "text/decimal.h"

namespace quorvex {

/// A number between two steps of a chain: the value of the text that `Intermediate` gives, or an
/// error token. Any other text that arithmetic takes may begin a chain.
///
/// Numbers as formatting writes them are held in limbs, and steps on them form no text. All else is
/// held as text and goes the slow way, with the same results. The operations are those of `Steps`.
class Step_Number {
 public:
  explicit Step_Number(std::string_view text);
  explicit Step_Number(double number);
  explicit Step_Number(const Decimal& number);
  explicit Step_Number(limbs::Number number) : number_(std::move(number)) {}

  /// Plain number text with its sign, or the token.
  NumberText text() const;

  /// The number's digits without zeros around them ("0" for 0), or the token. Fails as `Operand`
  /// does for text that is read otherwise.
  Decimal decimal() const;

  bool is_token() const;
  bool is_zero() const;
  bool is_negative() const;

  /// The power of ten of the leading digit: 2 for 123.4, -3 for 0.00123; 0 for 0. Not for tokens.
  std::int64_t leading_power() const;

  /// Whether the number is held in limbs, and if so, these.
  bool is_in_limbs() const { return !text_; }
  const limbs::Number& in_limbs() const { return number_; }

  /// Turns into the opposite number.
  void negate();

 private:
  friend class Steps;

  limbs::Number number_;
  std::optional<NumberText> text_;  // where the number is not in limbs
};

/// The number or the text as a result before it is formatted: any text stays that is no number.
Decimal Read_Decimal(const Step_Number& number);

/// The length of the number's text without the separator, its sign among it. Not for tokens.
std::int64_t Plain_Length(const Step_Number& number);

// Comparisons by value. Fail with type_mismatch where an operand is a token or no number.
bool Is_Equal(const Step_Number& a, const Step_Number& b);
bool Is_Greater(const Step_Number& a, const Step_Number& b);
bool Is_At_Least(const Step_Number& a, const Step_Number& b);

}  // namespace quorvex
