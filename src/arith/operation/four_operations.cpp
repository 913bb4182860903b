#include "arith/operation/four_operations.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "arith/digits/add_digits.h"
#include "arith/digits/multiply_digits.h"
#include "arith/digits/subtract_digits.h"
#include "arith/division/recip_divide.h"
#include "arith/operation/operation_codes.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

const Decimal_Parts& Digits_Of(const Operand& operand) {
  if (!operand.is_number()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An operand is no number.");
  }
  return operand.parts();
}

Decimal Add_Or_Subtract(const type_SignOp& reduced) {
  const Decimal_Parts& a = Digits_Of(*reduced.Operand1);
  const Decimal_Parts& b = Digits_Of(*reduced.Operand2);
  const auto decimals = static_cast<std::int64_t>(std::max(a.fraction.size(), b.fraction.size()));
  if (reduced.Operation == operation::add) {
    NumberText sum = Add_Decimals(a, b);
    if (sum.empty()) sum = "0";  // two operands without digits, such as blank cells
    return {std::move(sum), -decimals, reduced.Negative};
  }
  type_Subtraction difference = Subtract_Decimals(a, b);
  return {std::move(difference.Difference), -decimals, difference.NegativeSubtraction};
}

std::int64_t Decimals(const Operand& operand) {
  return static_cast<std::int64_t>(operand.parts().fraction.size());
}

// Operands of which one is no number reach the digit routines as texts, which tell what that gives.
Decimal Bare_Text(const Operand& operand) {
  NumberText text(operand.magnitude());
  Strip_Leading_Zeros(text);
  Decimal bare = Read_Magnitude(std::move(text));
  Strip_Leading_Zeros(bare.digits);
  return bare;
}

bool Are_Numbers(const type_SignOp& reduced) {
  return reduced.Operand1->is_number() && reduced.Operand2->is_number();
}

// A token in the place of digits has no place of its own.
Decimal Placed(Decimal digits, std::int64_t power, bool negative) {
  if (Has_Token_Mark(digits.digits)) return Decimal_Token(digits.digits);
  digits.power_of_ten += power;
  digits.negative = negative;
  return digits;
}

Decimal Multiply(const type_SignOp& reduced) {
  if (!Are_Numbers(reduced)) {
    const Decimal operand1 = Bare_Text(*reduced.Operand1);
    const Decimal operand2 = Bare_Text(*reduced.Operand2);
    return Placed({Multiply_Digits(operand1.digits, operand2.digits)},
                  operand1.power_of_ten + operand2.power_of_ten, reduced.Negative);
  }
  const Whole_Digits operand1(reduced.Operand1->parts());
  const Whole_Digits operand2(reduced.Operand2->parts());
  return Placed({Multiply_Digits(operand1.digits(), operand2.digits())},
                -Decimals(*reduced.Operand1) - Decimals(*reduced.Operand2), reduced.Negative);
}

// The limit of an operation is a digit more than what was asked for.
std::int32_t Digits_Of_Quotient(double limit) {
  if (limit > std::numeric_limits<std::int32_t>::max()) {
    throw Run_Time_Failure(Failure_Number::overflow,
                           "A quotient can't have " + Number_To_Text(limit - 1) +
                               " significant digits; the limit has to be lower.");
  }
  return To_Int32(limit);
}

Decimal Divide(const type_SignOp& reduced, double limit) {
  const std::int32_t digits = Digits_Of_Quotient(limit);
  if (!Are_Numbers(reduced)) {
    Decimal operand1 = Bare_Text(*reduced.Operand1);
    Decimal operand2 = Bare_Text(*reduced.Operand2);
    return Placed(Divide_Texts(operand1.digits, operand2.digits, digits),
                  operand1.power_of_ten - operand2.power_of_ten, reduced.Negative);
  }
  const Whole_Digits operand1(reduced.Operand1->parts());
  const Whole_Digits operand2(reduced.Operand2->parts());
  return Placed(Divide_Digits(operand1.digits(), operand2.digits(), digits),
                Decimals(*reduced.Operand2) - Decimals(*reduced.Operand1), reduced.Negative);
}

}  // namespace

Decimal Operate(const type_SignOp& reduced, double limit) {
  switch (reduced.Operation) {
    case operation::add:
    case operation::subtract:
      return Add_Or_Subtract(reduced);
    case operation::multiply:
      return Multiply(reduced);
    case operation::divide:
      return Divide(reduced, limit);
    default:
      return {};
  }
}

type_Restrictionator Intermediate_Format(double limit) {
  type_Restrictionator options;
  options.maxSD = With_Guard_Digit(Up_To_Ceiling(limit));
  return options;
}

NumberText Intermediate(std::int16_t Operation, std::string_view number1, std::string_view number2,
                        double limit) {
  return With_Handler(
      [&] {
        if (const auto token = Token_Of_Operands(number1, number2)) return NumberText(*token);
        const Operand operand1(number1);
        const Operand operand2(number2);
        const type_Restrictionator options = Intermediate_Format(limit);
        Decimal result = Operate(Resolve_Signs(Operation, operand1, operand2), options.maxSD);
        return Format_Result(std::move(result), options, true);
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
