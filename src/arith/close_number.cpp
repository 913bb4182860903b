#include "arith/close_number.h"

#include <utility>

#include "text/format_result.h"

namespace quorvex {

NumberText Close_Number(NumberText digits, double position, bool positive,
                        const Format_Arguments& format) {
  const type_Restrictionator options =
      Restrictionator({format.format_negative, format.format_thousands, format.format_currency,
                       format.exponential_notation, format.maximum_significant_digits});
  return Format_Result(std::move(digits), position, positive, options, false);
}

NumberText Close_In_Full(NumberText digits, double position, bool positive,
                         const Format_Arguments& format) {
  const HostValue all = maximum_digits;
  return Close_Number(std::move(digits), position, positive,
                      {format.format_negative, format.format_thousands, format.format_currency,
                       format.exponential_notation, all});
}

}  // namespace quorvex
