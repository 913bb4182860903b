#include "arith/step_number.h"

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {

Step_Number::Step_Number(double number) : text_(To_Text(HostValue(number))) {}

bool Step_Number::is_token() const {
  return Has_Token_Mark(text_);
}

bool Step_Number::is_zero() const {
  const Operand number(text_);
  return number.is_number() && Is_Zero(number.parts());
}

bool Step_Number::is_negative() const {
  return text_.starts_with('-') && !is_zero();
}

std::int64_t Step_Number::leading_power() const {
  const Operand number(text_);
  const Decimal_Parts& parts = number.parts();
  const std::size_t before = Count_Leading_Zeros(parts.integer);
  if (before < parts.integer.size()) {
    return static_cast<std::int64_t>(parts.integer.size() - before) - 1;
  }
  const std::size_t behind = Count_Leading_Zeros(parts.fraction);
  return behind < parts.fraction.size() ? -static_cast<std::int64_t>(behind) - 1 : 0;
}

Step_Number Step_Number::opposite() const {
  if (is_token() || is_zero()) return *this;
  return text_.starts_with('-') ? Step_Number(text_.substr(1)) : Step_Number("-" + text_);
}

Step_Number Step_Number::magnitude() const {
  return text_.starts_with('-') ? Step_Number(text_.substr(1)) : *this;
}

Step_Number Sum(const Step_Number& a, const Step_Number& b, double limit) {
  return Step_Number(Intermediate(operation::add, a.text(), b.text(), limit));
}

Step_Number Difference(const Step_Number& a, const Step_Number& b, double limit) {
  return Step_Number(Intermediate(operation::subtract, a.text(), b.text(), limit));
}

Step_Number Product(const Step_Number& a, const Step_Number& b, double limit) {
  return Step_Number(Intermediate(operation::multiply, a.text(), b.text(), limit));
}

Step_Number Quotient(const Step_Number& a, const Step_Number& b, double limit) {
  return Step_Number(Intermediate(operation::divide, a.text(), b.text(), limit));
}

bool Is_Greater(const Step_Number& a, const Step_Number& b) {
  const HostValue answer = Compare_Numbers(a.text(), b.text(), false, true);
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "What is compared is no number.");
  }
  return Is_True(answer);
}

}  // namespace quorvex
