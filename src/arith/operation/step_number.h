// Numbers in long chains of operations, such as the terms and sums of a series.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "arith/limbs/limb_number.h"
#include "host/host_value.h"

namespace quorvex {

/// A number between two steps of a chain: the value of the text that `Intermediate` gives, or an
/// error token. Any other text that arithmetic takes may begin a chain.
///
/// Numbers as formatting writes them are held in limbs, and steps on them at limits from 1 to a
/// million digits, quotients by few digits among them, form no text. All else is held as text and
/// goes the slow way, with the same results.
class Step_Number {
 public:
  explicit Step_Number(std::string_view text);
  explicit Step_Number(double number);
  explicit Step_Number(limbs::Number number) : number_(std::move(number)) {}

  /// Plain number text with its sign, or the token.
  NumberText text() const;

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

  // Turn into what the operations of these names give, without a copy.
  void add(const Step_Number& other, double limit);
  void subtract(const Step_Number& other, double limit);
  void multiply_by(const Step_Number& other, double limit);
  void divide_by(const Step_Number& other, double limit);

 private:
  friend bool Is_Greater(const Step_Number& a, const Step_Number& b);

  void by_text(std::int16_t code, const Step_Number& other, double limit);
  std::size_t digits_in_limbs(const Step_Number& other, double limit) const;

  limbs::Number number_;
  std::optional<NumberText> text_;  // where the number is not in limbs
};

// What `Intermediate` gives for the texts at the limit, digit for digit.
inline Step_Number Sum(Step_Number a, const Step_Number& b, double limit) {
  a.add(b, limit);
  return a;
}
inline Step_Number Difference(Step_Number a, const Step_Number& b, double limit) {
  a.subtract(b, limit);
  return a;
}
inline Step_Number Product(Step_Number a, const Step_Number& b, double limit) {
  a.multiply_by(b, limit);
  return a;
}
inline Step_Number Quotient(Step_Number a, const Step_Number& b, double limit) {
  a.divide_by(b, limit);
  return a;
}

/// True where a is the greater by value. Fails with type_mismatch where one is no number.
bool Is_Greater(const Step_Number& a, const Step_Number& b);

}  // namespace quorvex
