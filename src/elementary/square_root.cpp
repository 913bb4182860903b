#include "elementary/square_root.h"

#include <string>

#include "arith/operation/steps.h"
#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/limits.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// What has no text, as an array, is no number.
Step_Number Number_Of(const HostValue& num) {
  return With_Handler(
      [&] {
        std::string made;
        return Step_Number(Text_Of(num, made));
      },
      [](const Run_Time_Failure&) { return Step_Number(value_token); });
}

}  // namespace

NumberText Sqrt_Function(const HostValue& num, Radicand radicand, const Format_Arguments& format) {
  const HostValue limit = Limit_Unless_Blank(format.maximum_significant_digits);
  if (!Is_Positive(num)) return NumberText(num_token);
  const type_Restrictionator options =
      Restrictionator({Missing, format.format_thousands, format.format_currency,
                       format.exponential_notation, limit});
  const Steps steps(options.maxSD);
  Step_Number number = Number_Of(num);
  if (radicand == Radicand::multiple_of_pi) {
    steps.multiply(number, Step_Number(To_Text(Pi_Digits(limit))));
  }
  return Format_Result(Root_Digits(number, Step_Number(2), steps), options, false);
}

}  // namespace quorvex
