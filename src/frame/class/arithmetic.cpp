// The sum, difference, product and quotient of two numbers.
#include "arith/operation/do_operation.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"

namespace quorvex {

NumberText cls_Quorvex::qvxADD(const HostValue& number1, const HostValue& number2,
                               const HostValue& format_negative, const HostValue& format_thousands,
                               const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits,
                               const HostValue& format_decimal_place,
                               const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::add, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

NumberText cls_Quorvex::qvxSUBTRACT(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::subtract, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

NumberText cls_Quorvex::qvxMULTIPLY(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::multiply, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

NumberText cls_Quorvex::qvxDIVIDE(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& format_decimal_place, const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::divide, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

}  // namespace quorvex
