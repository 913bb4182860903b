#include "arith/operation/step_number.h"

#include <cmath>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>

#include "expects.h"
#include "host/conversions.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using limbs::Number;

// The host writes whole numbers below this plainly.
constexpr double plain_whole_numbers = 1e15;

// The order of two numbers in limbs.
std::strong_ordering Compare(const Number& a, const Number& b) {
  if (a.negative != b.negative) return b.negative <=> a.negative;
  return a.negative ? limbs::Compare_Magnitudes(b, a) : limbs::Compare_Magnitudes(a, b);
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

Step_Number::Step_Number(const Decimal& number) {
  if (Has_Non_Digit(number.digits)) {
    text_ = number.digits;
  } else {
    number_ = limbs::Number_Of(number);
  }
}

Decimal Step_Number::decimal() const {
  return text_ ? Significant_Digits(*text_) : limbs::Decimal_Of(number_);
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
  Expects(!is_token());
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

Decimal Read_Decimal(const Step_Number& number) {
  return number.is_in_limbs() ? number.decimal() : Read_Decimal(number.text());
}

std::int64_t Plain_Length(const Step_Number& number) {
  Expects(!number.is_token());
  return number.is_in_limbs() ? limbs::Plain_Length(number.in_limbs())
                              : Plain_Length(number.decimal());
}

bool Is_Equal(const Step_Number& a, const Step_Number& b) {
  if (!a.is_in_limbs() || !b.is_in_limbs()) return Is_Equal(a.text(), b.text());
  return std::is_eq(Compare(a.in_limbs(), b.in_limbs()));
}

bool Is_Greater(const Step_Number& a, const Step_Number& b) {
  if (!a.is_in_limbs() || !b.is_in_limbs()) return Is_Greater(a.text(), b.text());
  return std::is_gt(Compare(a.in_limbs(), b.in_limbs()));
}

bool Is_At_Least(const Step_Number& a, const Step_Number& b) {
  if (!a.is_in_limbs() || !b.is_in_limbs()) return Is_At_Least(a.text(), b.text());
  return std::is_gteq(Compare(a.in_limbs(), b.in_limbs()));
}

}  // namespace quorvex
