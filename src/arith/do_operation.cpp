#include "arith/do_operation.h"

#include <string>
#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/resolve_signs.h"
#include "arith/operation/short_operation.h"
#include "arith/operation/step_options.h"
#include "arith/powers/power_function.h"
#include "arith/powers/root_function.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

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

Decimal Result_Of(const type_SignOp& reduced, double limit, const Operation_Flags& flags) {
  const Step_Options options{limit, flags.restrict_input_lengths, flags.working_digits};
  switch (reduced.Operation) {
    case operation::power:
      return Power_Function(*reduced.Operand1, *reduced.Operand2, options);
    case operation::root:
      return Root_Function(*reduced.Operand1, *reduced.Operand2, options, Power);
    default:
      return Operate(reduced, limit);
  }
}

NumberText Operate_On_Texts(std::int16_t Operation, std::string_view number1,
                            std::string_view number2, type_Restrictionator options,
                            const Operation_Flags& flags) {
  const Operand operand1(number1);
  const Operand operand2(number2);
  options.maxSD = With_Guard_Digit(options.maxSD);
  if (flags.intermediate && !options.FormatDecimalPlace.is_missing()) {
    options.FormatDecimalPlace = Missing;
  }

  Decimal result = Result_Of(Resolve_Signs(Operation, operand1, operand2), options.maxSD, flags);
  // A token needs no options that can be read.
  if (Operation >= operation::multiply && Has_Token_Mark(result.digits)) return result.digits;
  return Format_Result(std::move(result), options, flags.intermediate);
}

NumberText Value_Token(const Run_Time_Failure&) {
  return NumberText(value_token);
}

template <typename Body>
NumberText With_Value_Token(const Body& body, const Operation_Flags& flags) {
  return flags.is_step ? With_Handler(body, Value_Token) : With_Outer_Handler(body, Value_Token);
}

// Options are resolved behind the look for tokens, which are the result whatever they say.
template <typename Resolve>
NumberText Operate_On_Values(std::int16_t Operation, const HostValue& number1,
                             const HostValue& number2, const Operation_Flags& flags,
                             const Resolve& options) {
  std::string scratch1;
  std::string scratch2;
  const std::string_view text1 = Operand_Text(number1, scratch1);
  const std::string_view text2 = Operand_Text(number2, scratch2);
  if (const auto token = Token_Of_Operands(text1, text2)) return NumberText(*token);
  return Operate_On_Texts(Operation, text1, text2, options(), flags);
}

}  // namespace

NumberText Do_Operation(std::int16_t Operation, const HostValue& number1, const HostValue& number2,
                        const Format_Arguments& format, const Operation_Flags& flags) {
  return With_Value_Token(
      [&] {
        if (NumberText result;
            Short_Operation(Operation, number1, number2, format, flags.intermediate, result)) {
          return result;
        }
        return Operate_On_Values(Operation, number1, number2, flags,
                                 [&] { return Restrictionator(format); });
      },
      flags);
}

NumberText Do_Operation_On_Values(std::int16_t Operation, const HostValue& number1,
                                  const HostValue& number2, const type_Restrictionator& options,
                                  const Operation_Flags& flags) {
  return With_Value_Token(
      [&] {
        return Operate_On_Values(Operation, number1, number2, flags, [&] { return options; });
      },
      flags);
}

NumberText Do_Operation_On_Texts(std::int16_t Operation, std::string_view number1,
                                 std::string_view number2, const type_Restrictionator& options,
                                 const Operation_Flags& flags) {
  return With_Handler(
      [&] {
        if (const auto token = Token_Of_Operands(number1, number2)) return NumberText(*token);
        return Operate_On_Texts(Operation, number1, number2, options, flags);
      },
      Value_Token);
}

}  // namespace quorvex
