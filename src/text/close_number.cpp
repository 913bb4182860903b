#include "text/close_number.h"

#include <utility>

#include "text/clean_up_number.h"
#include "text/format_result.h"

namespace quorvex {

NumberText Close_Number(Decimal number, const Format_Arguments& format) {
  const type_Restrictionator options =
      Restrictionator({format.format_negative, format.format_thousands, format.format_currency,
                       format.exponential_notation, format.maximum_significant_digits});
  return Format_Result(std::move(number), options, false);
}

NumberText Close_In_Full(Decimal number, const Format_Arguments& format) {
  const HostValue all = maximum_digits;
  return Close_Number(std::move(number),
                      {format.format_negative, format.format_thousands, format.format_currency,
                       format.exponential_notation, all});
}

NumberText Close_Text(std::string_view number, const Format_Arguments& format) {
  return Close_Number(Read_Decimal(Clean_Up_Number(number, false, false)), format);
}

}  // namespace quorvex
