// The worksheet functions of two operands, of comparison and of sign.
#include "frame/cls_Quorvex.h"

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The answer of a comparison as a cell shows it: a boolean as its word, a token as it is.
HostValue Shown(const HostValue& answer) {
  return To_Text(answer);
}

HostValue Compare(const HostValue& number1, const HostValue& number2, bool testEqual,
                  bool testGreater) {
  return With_Memory_Failures([&] {
    std::string scratch1;
    std::string scratch2;
    return Compare_Numbers(Text_Of(number1, scratch1), Text_Of(number2, scratch2), testEqual,
                           testGreater);
  });
}

bool Is_Restricted(const HostValue& restrict_input_lengths) {
  return !restrict_input_lengths.is_missing() && To_Boolean(restrict_input_lengths);
}

}  // namespace

NumberText cls_Quorvex::qvxADD(const HostValue& number1, const HostValue& number2,
                               const HostValue& format_negative, const HostValue& format_thousands,
                               const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits,
                               const HostValue& format_decimal_place,
                               const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::add, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxSUBTRACT(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::subtract, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxMULTIPLY(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::multiply, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxDIVIDE(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::divide, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place});
}

NumberText cls_Quorvex::qvxROOT(const HostValue& number1, const HostValue& number2,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits,
                                const HostValue& restrict_input_lengths,
                                const HostValue& format_decimal_place,
                                const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::root, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                      {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
}

NumberText cls_Quorvex::qvxPOWER(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& restrict_input_lengths, const HostValue& format_decimal_place,
    const HostValue& preserve_decimal_place) {
  return Do_Operation(operation::power, number1, number2,
                      {format_negative, format_thousands, format_currency, exponential_notation,
                       maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                      {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
}

HostValue cls_Quorvex::qvxISEQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, false));
}

HostValue cls_Quorvex::qvxISNOTEQUAL(const HostValue& number1, const HostValue& number2) {
  const HostValue answer = Compare(number1, number2, true, false);
  const bool is_no_number = answer.is_text() && answer.text() == num_token;
  return Shown(is_no_number ? answer : HostValue(!Is_True(answer)));
}

HostValue cls_Quorvex::qvxISGREATER(HostValue& number1, HostValue& number2) {
  if (!number1.is_text()) number1 = To_Text(number1);
  if (!number2.is_text()) number2 = To_Text(number2);
  return Shown(Compare_Numbers(number1.text(), number2.text(), false, true));
}

HostValue cls_Quorvex::qvxISGREATEROREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number1, number2, true, true));
}

HostValue cls_Quorvex::qvxISLESS(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, false, true));
}

HostValue cls_Quorvex::qvxISLESSOREQUAL(const HostValue& number1, const HostValue& number2) {
  return Shown(Compare(number2, number1, true, true));
}

HostValue cls_Quorvex::qvxSIGN(const HostValue& num) {
  return With_Memory_Failures([&] { return Sign_Function(num); });
}

}  // namespace quorvex
