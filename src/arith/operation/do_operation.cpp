#include "arith/operation/do_operation.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "arith/digits/add_digits.h"
#include "arith/digits/multiply_digits.h"
#include "arith/digits/subtract_digits.h"
#include "arith/division/recip_divide.h"
#include "arith/operation/resolve_signs.h"
#include "arith/powers/power_function.h"
#include "arith/powers/root_function.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/decimal_positions.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/operand.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// What an operation gives before formatting.
struct Raw_Result {
  NumberText digits;
  double position = 0;
  bool negative = false;
};

// The text of an operand. An error value of the host has none, as far as arithmetic goes.
std::string_view Operand_Text(const HostValue& value, std::string& scratch) {
  if (value.is_text()) return value.text();
  if (value.kind() == HostValue::Kind::error) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An operand is an error value.");
  }
  if (Is_Single_Cell(value)) {
    HostValue cell = Cell_Of(value);
    if (cell.kind() == HostValue::Kind::error) return Operand_Text(cell, scratch);
    return scratch = cell.is_text() ? std::move(cell.mutable_text()) : To_Text(cell);
  }
  return Text_Of(value, scratch);
}

const Decimal_Parts& Digits_Of(const Operand& operand) {
  if (!operand.is_number()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An operand is no number.");
  }
  return operand.parts();
}

Raw_Result Add_Or_Subtract(const type_SignOp& reduced) {
  const Decimal_Parts& a = Digits_Of(*reduced.Operand1);
  const Decimal_Parts& b = Digits_Of(*reduced.Operand2);
  const auto position = static_cast<double>(std::max(a.fraction.size(), b.fraction.size()) + 1);
  if (reduced.Operation == operation::add) {
    NumberText sum = Add_Decimals(a, b);
    if (sum.empty()) sum = "0";  // two operands without digits, such as blank cells
    return {std::move(sum), position, reduced.Negative};
  }
  type_Subtraction difference = Subtract_Decimals(a, b);
  return {std::move(difference.Difference), position, difference.NegativeSubtraction};
}

// The digits of a number without separator and leading zeros.
class Bare_Number {
 public:
  explicit Bare_Number(const Decimal_Parts& parts)
      : decimals_(static_cast<double>(parts.fraction.size())) {
    std::string_view integer = Without_Zeros(parts.integer);
    std::string_view fraction = integer.empty() ? Without_Zeros(parts.fraction) : parts.fraction;
    digits_ = integer.empty() ? fraction : integer;
    if (digits_.empty()) digits_ = "0";
    if (integer.empty() || fraction.empty()) return;
    joined_.reserve(integer.size() + fraction.size());
    joined_.append(integer).append(fraction);
    digits_ = joined_;
  }
  Bare_Number(const Bare_Number&) = delete;
  Bare_Number& operator=(const Bare_Number&) = delete;

  std::string_view digits() const { return digits_; }
  double decimals() const { return decimals_; }

 private:
  static std::string_view Without_Zeros(std::string_view digits) {
    return digits.starts_with('0') ? digits.substr(Count_Leading_Zeros(digits)) : digits;
  }

  std::string joined_;
  std::string_view digits_;
  double decimals_;
};

// Operands of which one is no number reach the digit routines as texts, which tell what that gives.
struct Bare_Texts {
  double Position;
  double Position1;
  double Position2;
  type_RemoveDecimals digits;
};

Bare_Texts Without_Separators(const type_SignOp& reduced) {
  NumberText operand1(reduced.Operand1->magnitude());
  NumberText operand2(reduced.Operand2->magnitude());
  Strip_Leading_Zeros(operand1);
  Strip_Leading_Zeros(operand2);
  type_DecPosFromEnd aligned =
      Decimal_Positions(std::move(operand1), std::move(operand2), reduced.Operation);
  Bare_Texts bare{aligned.Position, aligned.Position1, aligned.Position2, {}};
  bare.digits = Remove_Decimals(std::move(aligned));
  Strip_Leading_Zeros(bare.digits.Operand1_Trim);
  Strip_Leading_Zeros(bare.digits.Operand2_Trim);
  return bare;
}

bool Are_Numbers(const type_SignOp& reduced) {
  return reduced.Operand1->is_number() && reduced.Operand2->is_number();
}

Raw_Result Multiply(const type_SignOp& reduced) {
  if (!Are_Numbers(reduced)) {
    const Bare_Texts operands = Without_Separators(reduced);
    return {Multiply_Digits(operands.digits.Operand1_Trim, operands.digits.Operand2_Trim),
            operands.Position, reduced.Negative};
  }
  const Bare_Number operand1(reduced.Operand1->parts());
  const Bare_Number operand2(reduced.Operand2->parts());
  return {Multiply_Digits(operand1.digits(), operand2.digits()),
          operand1.decimals() + operand2.decimals() + 1, reduced.Negative};
}

// Puts the point of a quotient: `decimals` is how many more the dividend has than the divisor.
Raw_Result Place_Point(type_Division_Recip quotient, double decimals, bool negative) {
  if (Has_Token_Mark(quotient.digits)) return {std::move(quotient.digits), 0, false};
  double position = -static_cast<double>(quotient.powerOfTen) + decimals;
  if (position < 0) {
    Require_Memory(-position);
    quotient.digits.append(static_cast<std::size_t>(-position), '0');
    position = 0;
  }
  return {std::move(quotient.digits), position + 1, negative};
}

// The digits right of the separator that an operand's position tells of.
double Decimals(double position) {
  return position == 0 ? 0 : position - 1;
}

Raw_Result Divide(const type_SignOp& reduced, double limit) {
  const std::int32_t digits = To_Int32(limit);
  if (!Are_Numbers(reduced)) {
    Bare_Texts operands = Without_Separators(reduced);
    return Place_Point(
        Recip_Divide(operands.digits.Operand1_Trim, operands.digits.Operand2_Trim, digits),
        Decimals(operands.Position1) - Decimals(operands.Position2), reduced.Negative);
  }
  const Bare_Number operand1(reduced.Operand1->parts());
  const Bare_Number operand2(reduced.Operand2->parts());
  return Place_Point(Divide_Digits(operand1.digits(), operand2.digits(), digits),
                     operand1.decimals() - operand2.decimals(), reduced.Negative);
}

Raw_Result Raise(const type_SignOp& reduced, double limit, const Operation_Flags& flags) {
  Scaled_Number power = Power_Function(*reduced.Operand1, *reduced.Operand2,
                                       {limit, flags.restrict_input_lengths, flags.working_digits});
  if (power.is_token()) return {NumberText(power.token), 0, false};
  if (power.exponent < 0) {
    return {std::move(power.digits), 1 - static_cast<double>(power.exponent), power.negative};
  }
  Require_Memory(texts_at_once * static_cast<double>(power.exponent));
  power.digits.append(static_cast<std::size_t>(power.exponent), '0');
  return {std::move(power.digits), 0, power.negative};
}

// The sign of a root stands in its text.
Raw_Result Extract(const type_SignOp& reduced, double limit, const Operation_Flags& flags) {
  NumberText root = Root_Function(*reduced.Operand1, *reduced.Operand2,
                                  {limit, flags.restrict_input_lengths, flags.working_digits});
  const double position = Decimal_Position_Of(root);
  const bool negative = !Is_Positive(root);
  if (root.starts_with('-')) root.erase(0, 1);
  Remove_Decimal_Separator(root);
  return {std::move(root), position, negative};
}

Raw_Result Operate(const type_SignOp& reduced, double limit, const Operation_Flags& flags) {
  switch (reduced.Operation) {
    case operation::add:
    case operation::subtract:
      return Add_Or_Subtract(reduced);
    case operation::multiply:
      return Multiply(reduced);
    case operation::divide:
      return Divide(reduced, limit);
    case operation::power:
      return Raise(reduced, limit, flags);
    case operation::root:
      return Extract(reduced, limit, flags);
    default:
      return {};
  }
}

NumberText Operate_On_Text(std::int16_t Operation, std::string_view number1,
                           std::string_view number2, type_Restrictionator options,
                           const Operation_Flags& flags) {
  const Operand operand1(number1);
  const Operand operand2(number2);
  // One guard digit here, and formatting keeps one more: so results have two beyond the limit.
  options.maxSD += 1;
  if (flags.intermediate && !options.FormatDecimalPlace.is_missing()) {
    options.FormatDecimalPlace = Missing;
  }

  Raw_Result raw = Operate(Resolve_Signs(Operation, operand1, operand2), options.maxSD, flags);
  if (Operation >= operation::multiply && Has_Token_Mark(raw.digits)) return raw.digits;
  return Format_Result(std::move(raw.digits), raw.position, !raw.negative, options,
                       flags.intermediate);
}

NumberText Value_Token(const Run_Time_Failure&) {
  return NumberText(value_token);
}

}  // namespace

NumberText Do_Operation(std::int16_t Operation, const HostValue& number1, const HostValue& number2,
                        const Format_Arguments& format, const Operation_Flags& flags) {
  const auto operate = [&] {
    std::string scratch1;
    std::string scratch2;
    const std::string_view text1 = Operand_Text(number1, scratch1);
    const std::string_view text2 = Operand_Text(number2, scratch2);
    if (const auto token = Token_Of_Operands(text1, text2)) return NumberText(*token);
    return Operate_On_Text(Operation, text1, text2, Restrictionator(format), flags);
  };
  return flags.lack_of_memory_fails ? With_Handler_But_For_Memory(operate, Value_Token)
                                    : With_Handler(operate, Value_Token);
}

NumberText Intermediate(std::int16_t Operation, std::string_view number1, std::string_view number2,
                        double limit) {
  return With_Handler(
      [&] {
        if (const auto token = Token_Of_Operands(number1, number2)) return NumberText(*token);
        type_Restrictionator options;
        options.maxSD = std::fmin(limit, maximum_digits);
        return Operate_On_Text(Operation, number1, number2, std::move(options),
                               {.intermediate = true});
      },
      Value_Token);
}

}  // namespace quorvex
