// The formatting options, and what reads or formats a number as it is.
#include "frame/class/cls_Quorvex.h"
#include "frame/class/outer_call.h"
#include "host/conversions.h"
#include "text/format_result.h"
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
  return Outer_Call([&] {
    return quorvex::Restrictionator({format_negative, format_thousands, format_currency,
                                     exponential_notation, maximum_significant_digits,
                                     format_decimal_place, preserve_decimal_place});
  });
}

bool cls_Quorvex::qvxISNUMBER(const HostValue& num) {
  return Outer_Call([&] {
    std::string scratch;
    return Is_Number_Text(Text_Of(num, scratch));
  });
}

HostValue cls_Quorvex::qvxDEFAULTMAXSD() {
  return Default_MaxSD();
}

NumberText cls_Quorvex::qvxFORMAT(const NumberText& number, const HostValue& format_negative,
                                  const HostValue& format_thousands,
                                  const HostValue& format_currency,
                                  const HostValue& exponential_notation,
                                  const HostValue& maximum_significant_digits,
                                  const HostValue& format_decimal_place,
                                  const HostValue& preserve_decimal_place) {
  return Outer_Call([&] {
    return Format_Number(
        number, {format_negative, format_thousands, format_currency, exponential_notation,
                 maximum_significant_digits, format_decimal_place, preserve_decimal_place});
  });
}

}  // namespace quorvex
