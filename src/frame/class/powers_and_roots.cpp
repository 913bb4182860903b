// Powers and roots.
#include "arith/operation/do_operation.h"
#include "elementary/square_root.h"
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"

namespace quorvex {
namespace {

bool Is_Restricted(const HostValue& restrict_input_lengths) {
  return !restrict_input_lengths.is_missing() && To_Boolean(restrict_input_lengths);
}

}  // namespace

NumberText cls_Quorvex::qvxSQRT(const HostValue& num, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation, const HostValue& maxSD) {
  return Outer_Call([&] {
    return Sqrt_Function(num, Radicand::number,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

NumberText cls_Quorvex::qvxSQRTPI(const HostValue& num, const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation, const HostValue& maxSD) {
  return Outer_Call([&] {
    return Sqrt_Function(num, Radicand::multiple_of_pi,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

NumberText cls_Quorvex::qvxROOT(const HostValue& number1, const HostValue& number2,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits,
                                const HostValue& restrict_input_lengths,
                                const HostValue& format_decimal_place,
                                const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::root, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                        {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
  });
}

NumberText cls_Quorvex::qvxPOWER(
    const HostValue& number1, const HostValue& number2, const HostValue& format_negative,
    const HostValue& format_thousands, const HostValue& format_currency,
    const HostValue& exponential_notation, const HostValue& maximum_significant_digits,
    const HostValue& restrict_input_lengths, const HostValue& format_decimal_place,
    const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Do_Operation(operation::power, number1, number2,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits, format_decimal_place, preserve_decimal_place},
                        {.restrict_input_lengths = Is_Restricted(restrict_input_lengths)});
  });
}

}  // namespace quorvex
