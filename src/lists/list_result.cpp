#include "lists/list_result.h"

#include <utility>

#include "numbers/long_characters.h"
#include "numbers/written_out.h"
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

  const bool positive = Is_Positive(text);
  if (text.starts_with('-')) text.erase(0, 1);
  const double position = Decimal_Position_Of(text);
  Remove_Decimal_Separator(text);
  // A thousands separator among zeros at the left is known as such only while it is whole.
  if (!text.empty() && !Has_Token_Mark(text)) Strip_Leading_Zeros(text);
  const Long_Characters long_characters(text);
  NumberText result = Format_Result(std::move(text), position, positive, resolved, false);
  long_characters.restore(result);
  return result;
}

}  // namespace quorvex
