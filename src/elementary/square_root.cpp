#include "elementary/square_root.h"

#include <utility>

#include "arith/do_operation.h"
#include "elementary/constants.h"
#include "host/conversions.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/limits.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {

NumberText Sqrt_Function(const HostValue& num, Radicand radicand, const Format_Arguments& format) {
  const HostValue limit = Limit_Unless_Blank(format.maximum_significant_digits);
  if (!Is_Positive(num)) return NumberText(num_token);
  const Format_Arguments plain{.maximum_significant_digits = limit};
  NumberText root =
      radicand == Radicand::number
          ? Do_Operation(operation::root, num, 2, plain)
          : Do_Operation_On_Texts(operation::root,
                                  Do_Operation(operation::multiply, num, Pi_Digits(limit), plain),
                                  "2", Restrictionator(plain));
  const type_Restrictionator options =
      Restrictionator({Missing, format.format_thousands, format.format_currency,
                       format.exponential_notation, limit});
  return Format_Result(Read_Decimal(std::move(root)), options, false);
}

}  // namespace quorvex
