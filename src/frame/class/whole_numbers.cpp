// The worksheet functions of whole numbers, their parts and signs.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"
#include "lists/is_error.h"
#include "numbers/even_odd.h"
#include "numbers/frac_function.h"
#include "numbers/mod_function.h"
#include "numbers/parity.h"
#include "numbers/signs.h"
#include "numbers/whole_part.h"

namespace quorvex {

HostValue cls_Quorvex::qvxISODD(const HostValue& num) {
  return Outer_Call([&] {
    std::string scratch;
    return IsOdd_Function(Text_Of(num, scratch));
  });
}

HostValue cls_Quorvex::qvxISEVEN(const HostValue& num) {
  return Outer_Call([&] {
    std::string scratch;
    return IsEven_Function(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::qvxEVEN(const HostValue& num, bool RoundNegTowardZero,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Even_Function(
        Text_Of(num, scratch), Parity::even, RoundNegTowardZero,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxODD(const HostValue& num, bool RoundNegTowardZero,
                               const HostValue& format_negative, const HostValue& format_thousands,
                               const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Even_Function(
        Text_Of(num, scratch), Parity::odd, RoundNegTowardZero,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxEVEN2(const HostValue& num, bool RoundNegAwayFromZero,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Odd_Function(Text_Of(num, scratch), Parity::even, RoundNegAwayFromZero,
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxODD2(const HostValue& num, bool RoundNegAwayFromZero,
                                const HostValue& format_negative, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Odd_Function(Text_Of(num, scratch), Parity::odd, RoundNegAwayFromZero,
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

bool cls_Quorvex::qvxISERROR(const HostValue& num) {
  return Outer_Call([&] { return IsError_Function(num); });
}

NumberText cls_Quorvex::qvxINT(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Int_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxTRUNC(const HostValue& num, const HostValue& num_digits,
                                 const HostValue& format_negative,
                                 const HostValue& format_thousands,
                                 const HostValue& format_currency,
                                 const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Trunc_Function(
        Text_Of(num, scratch), num_digits,
        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxFRAC(const HostValue& num, const HostValue& as_int,
                                const HostValue& sign, const HostValue& format_negative,
                                const HostValue& format_thousands, const HostValue& format_currency,
                                const HostValue& exponential_notation,
                                const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Frac_Function(num, as_int, sign,
                         {format_negative, format_thousands, format_currency, exponential_notation,
                          maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxMOD(const HostValue& dividend, const HostValue& divisor,
                               const HostValue& sign, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation,
                               const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Mod_Function(dividend, divisor, false, sign,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxMODTRUNC(const HostValue& dividend, const HostValue& divisor,
                                    const HostValue& sign, const HostValue& format_negative,
                                    const HostValue& format_thousands,
                                    const HostValue& format_currency,
                                    const HostValue& exponential_notation,
                                    const HostValue& maximum_significant_digits) {
  return Outer_Call([&] {
    return Mod_Function(dividend, divisor, true, sign,
                        {format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxREMAINDER(const HostValue& dividend, const HostValue& divisor,
                                     const HostValue& sign, const HostValue& format_negative,
                                     const HostValue& format_thousands,
                                     const HostValue& format_currency,
                                     const HostValue& exponential_notation,
                                     const HostValue& maximum_significant_digits) {
  // Every argument goes one place to the left. That is how the function has always read them.
  return Outer_Call([&] {
    return Mod_Function(
        dividend, divisor, sign, format_negative,
        {format_thousands, format_currency, exponential_notation, maximum_significant_digits});
  });
}

NumberText cls_Quorvex::qvxABS(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Abs_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxNEG(const HostValue& num, const HostValue& format_negative,
                               const HostValue& format_thousands, const HostValue& format_currency,
                               const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return Neg_Function(Text_Of(num, scratch),
                        {format_negative, format_thousands, format_currency, exponential_notation});
  });
}

NumberText cls_Quorvex::qvxCHANGESIGN(const HostValue& num, const HostValue& format_negative,
                                      const HostValue& format_thousands,
                                      const HostValue& format_currency,
                                      const HostValue& exponential_notation) {
  return Outer_Call([&] {
    std::string scratch;
    return ChangeSign_Function(Text_Of(num, scratch), {format_negative, format_thousands,
                                                       format_currency, exponential_notation});
  });
}

}  // namespace quorvex
