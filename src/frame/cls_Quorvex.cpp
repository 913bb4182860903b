// Methods of the public class that belong to no family of their own.
#include "frame/cls_Quorvex.h"

#include "arith/division/recip_divide.h"
#include "elementary/angle_units.h"
#include "elementary/constants.h"
#include "elementary/square_root.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "lists/is_error.h"
#include "text/format_result.h"
#include "text/limits.h"
#include "text/recognition.h"

namespace quorvex {

type_Restrictionator cls_Quorvex::PublicRestrictionatorCaller(
    const HostValue& format_negative, const HostValue& format_thousands,
    const HostValue& format_currency, const HostValue& exponential_notation,
    const HostValue& maximum_significant_digits) {
  return Restrictionator(format_negative, format_thousands, format_currency, exponential_notation,
                         maximum_significant_digits);
}

type_Restrictionator cls_Quorvex::Restrictionator(const HostValue& format_negative,
                                                  const HostValue& format_thousands,
                                                  const HostValue& format_currency,
                                                  const HostValue& exponential_notation,
                                                  const HostValue& maximum_significant_digits,
                                                  const HostValue& format_decimal_place,
                                                  const HostValue& preserve_decimal_place) {
  return quorvex::Restrictionator({format_negative, format_thousands, format_currency,
                                   exponential_notation, maximum_significant_digits,
                                   format_decimal_place, preserve_decimal_place});
}

HostValue cls_Quorvex::DivisionDecimalPosition(const NumberText& divisor,
                                               const NumberText& dividend) {
  return quorvex::DivisionDecimalPosition(divisor, dividend);
}

type_Division_Recip cls_Quorvex::Recip_Divide(NumberText& iBig, NumberText& kBig,
                                              std::int32_t Precision) {
  return quorvex::Recip_Divide(iBig, kBig, Precision);
}

type_Division_Recip cls_Quorvex::myInverse5(const NumberText& kBig, std::int32_t p) {
  return quorvex::myInverse5(kBig, p);
}

HostValue cls_Quorvex::Min(const HostValue& num1, const HostValue& num2) {
  return quorvex::Min(num1, num2);
}

HostValue cls_Quorvex::Max(const HostValue& num1, const HostValue& num2) {
  return quorvex::Max(num1, num2);
}

HostValue cls_Quorvex::GetHalfofLong(std::int32_t num_as_long) {
  return quorvex::GetHalfofLong(num_as_long);
}

NumberText cls_Quorvex::qvxSQRT(const HostValue& num, const HostValue& format_thousands,
                                const HostValue& format_currency,
                                const HostValue& exponential_notation, const HostValue& maxSD) {
  return With_Memory_Failures([&] {
    return Sqrt_Function(num, Radicand::number,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

NumberText cls_Quorvex::qvxSQRTPI(const HostValue& num, const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation, const HostValue& maxSD) {
  return With_Memory_Failures([&] {
    return Sqrt_Function(num, Radicand::multiple_of_pi,
                         {Missing, format_thousands, format_currency, exponential_notation, maxSD});
  });
}

bool cls_Quorvex::qvxISERROR(const HostValue& num) {
  return With_Memory_Failures([&] { return IsError_Function(num); });
}

bool cls_Quorvex::qvxISNUMBER(const HostValue& num) {
  return With_Memory_Failures([&] {
    std::string scratch;
    return Is_Number_Text(Text_Of(num, scratch));
  });
}

NumberText cls_Quorvex::qvxPi(const HostValue& digits) {
  return To_Text(Pi_Digits(Constant_Digits(digits)));
}

NumberText cls_Quorvex::qvxE(const HostValue& digits) {
  return To_Text(E_Digits(Constant_Digits(digits)));
}

HostValue cls_Quorvex::qvxDEFAULTMAXSD() {
  return Default_MaxSD();
}

NumberText cls_Quorvex::qvxRADIANS(const NumberText& degrees, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return Radians_Function(degrees, maxSD); });
}

NumberText cls_Quorvex::qvxDEGREES(const NumberText& radians, const HostValue& maxSD) {
  return With_Memory_Failures([&] { return Degrees_Function(radians, maxSD); });
}

NumberText cls_Quorvex::qvxFORMAT(const NumberText& number, const HostValue& format_negative,
                                  const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation,
                                  const HostValue& maximum_significant_digits,
                                  const HostValue& format_decimal_place,
                                  const HostValue& preserve_decimal_place) {
  return With_Memory_Failures([&] {
    return Format_Number(
        number, {format_negative, format_thousands, format_currency, exponential_notation,
                 maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

}  // namespace quorvex
