#include "lists/list_result.h"

#include <utility>

#include "lists/long_characters.h"
#include "lists/written_out.h"
#include "text/format_result.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {

NumberText Finish_List(NumberText running, const List_Options& options) {
  const HostValue negative = options.negative ? 2 : 1;
  const HostValue thousands = options.thousands;
  const HostValue currency = options.currency;
  const HostValue exponent = options.exponent;
  const HostValue msd = options.msd;
  const type_Restrictionator resolved =
      Restrictionator({negative, thousands, currency, exponent, msd});

  Write_Out(running);
  const bool positive = Is_Positive(running);
  if (running.starts_with('-')) running.erase(0, 1);
  const double position = Decimal_Position_Of(running);
  Remove_Decimal_Separator(running);
  // A thousands separator among zeros at the left is known as such only while it is whole.
  if (!running.empty() && !Has_Token_Mark(running)) Strip_Leading_Zeros(running);
  const Long_Characters long_characters(running);
  NumberText result = Format_Result(std::move(running), position, positive, resolved, false);
  long_characters.restore(result);
  return result;
}

}  // namespace quorvex
