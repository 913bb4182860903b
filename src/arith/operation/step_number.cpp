#include "arith/operation/step_number.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "arith/digits/multiply_digits.h"
#include "arith/division/limb_quotient.h"
#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using limbs::Number;

// The host writes whole numbers below this plainly.
constexpr double plain_whole_numbers = 1e15;

// Limits and powers of the base beyond these are left to the operations on text, which ask for the
// memory that they need.
constexpr double highest_limit = 1'000'000;
constexpr std::int64_t highest_power = 1'000'000;

// Formatting keeps two digits beyond the limit, division one.
constexpr std::size_t formatted_beyond = 2;
constexpr std::size_t divided_beyond = 1;

bool Is_Near(const Number& number) {
  return number.low >= -highest_power && number.top() <= highest_power;
}

}  // namespace

Step_Number::Step_Number(std::string_view text) {
  if (auto number = limbs::Read_Canonical(text)) {
    number_ = std::move(*number);
  } else {
    text_ = text;
  }
}

Step_Number::Step_Number(double number) {
  if (std::fabs(number) < plain_whole_numbers && std::trunc(number) == number) {
    auto limb = static_cast<limbs::Limb>(std::fabs(number));
    limbs::Trim({&limb, 1, 0, number < 0}, number_);
  } else {
    *this = Step_Number(Number_To_Text(number));
  }
}

NumberText Step_Number::text() const {
  return text_ ? *text_ : limbs::Text_Of(number_);
}

bool Step_Number::is_token() const {
  return text_ && Has_Token_Mark(*text_);
}

bool Step_Number::is_zero() const {
  if (!text_) return number_.is_zero();
  const Operand number(*text_);
  return number.is_number() && Is_Zero(number.parts());
}

bool Step_Number::is_negative() const {
  return text_ ? text_->starts_with('-') && !is_zero() : number_.negative;
}

std::int64_t Step_Number::leading_power() const {
  if (!text_) return number_.is_zero() ? 0 : limbs::Leading_Power(number_);
  const Operand number(*text_);
  const Decimal_Parts& parts = number.parts();
  const std::size_t before = Count_Leading_Zeros(parts.integer);
  if (before < parts.integer.size()) {
    return static_cast<std::int64_t>(parts.integer.size() - before) - 1;
  }
  const std::size_t behind = Count_Leading_Zeros(parts.fraction);
  return behind < parts.fraction.size() ? -static_cast<std::int64_t>(behind) - 1 : 0;
}

void Step_Number::negate() {
  if (!text_) {
    number_.negative = !number_.negative && !number_.is_zero();
  } else if (!is_token() && !is_zero()) {
    *this = Step_Number(text_->starts_with('-') ? text_->substr(1) : "-" + *text_);
  }
}

void Step_Number::by_text(std::int16_t code, const Step_Number& other, double limit) {
  *this = Step_Number(Intermediate(code, text(), other.text(), limit));
}

// The limit where both numbers are such that a step is taken in limbs, otherwise 0.
std::size_t Step_Number::digits_in_limbs(const Step_Number& other, double limit) const {
  const bool is_plain = limit >= 1 && limit <= highest_limit && std::trunc(limit) == limit;
  if (!is_plain || text_ || other.text_ || !Is_Near(number_) || !Is_Near(other.number_)) return 0;
  return static_cast<std::size_t>(limit);
}

void Step_Number::add(const Step_Number& other, double limit) {
  const std::size_t digits = digits_in_limbs(other, limit);
  if (digits == 0) return by_text(operation::add, other, limit);
  limbs::Add(number_, other.number_, other.number_.negative, digits + formatted_beyond, number_);
}

void Step_Number::subtract(const Step_Number& other, double limit) {
  const std::size_t digits = digits_in_limbs(other, limit);
  if (digits == 0) return by_text(operation::subtract, other, limit);
  limbs::Add(number_, other.number_, !other.number_.negative, digits + formatted_beyond, number_);
}

void Step_Number::multiply_by(const Step_Number& other, double limit) {
  const std::size_t digits = digits_in_limbs(other, limit);
  if (digits == 0 || !Can_Multiply()) return by_text(operation::multiply, other, limit);
  limbs::Multiply(number_, other.number_, digits + formatted_beyond, number_);
}

void Step_Number::divide_by(const Step_Number& other, double limit) {
  const std::size_t digits = digits_in_limbs(other, limit);
  if (digits == 0 || !Can_Multiply() ||
      !limbs::Divide(number_, other.number_, digits + divided_beyond, number_)) {
    by_text(operation::divide, other, limit);
  }
}

bool Is_Greater(const Step_Number& a, const Step_Number& b) {
  if (!a.text_ && !b.text_) {
    const Number& first = a.number_;
    const Number& second = b.number_;
    if (first.negative != second.negative) return second.negative;
    const auto order = limbs::Compare_Magnitudes(first, second);
    return first.negative ? std::is_lt(order) : std::is_gt(order);
  }
  const HostValue answer = Compare_Numbers(a.text(), b.text(), false, true);
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "What is compared is no number.");
  }
  return Is_True(answer);
}

}  // namespace quorvex
