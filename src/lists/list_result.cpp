#include "lists/list_result.h"

#include <utility>

#include "numbers/long_characters.h"
#include "numbers/written_out.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {

NumberText Finish_List(NumberText running, const List_Options& options) {
  Write_Out(running);
  return Finish_Text(std::move(running), options);
}

NumberText Finish_Text(NumberText text, const List_Options& options) {
  const HostValue negative = options.negative ? 2 : 1;
  const HostValue thousands = options.thousands;
  const HostValue currency = options.currency;
  const HostValue exponent = options.exponent;
  const HostValue msd = options.msd;
  const type_Restrictionator resolved =
      Restrictionator({negative, thousands, currency, exponent, msd});

  Decimal number = Read_Decimal(std::move(text));
  NumberText& digits = number.digits;
  // A thousands separator among zeros at the left is known as such only while it is whole.
  if (!digits.empty() && !Has_Token_Mark(digits)) Strip_Leading_Zeros(digits);
  const Long_Characters long_characters(digits);
  NumberText result = Format_Result(std::move(number), resolved, false);
  long_characters.restore(result);
  return result;
}

}  // namespace quorvex
