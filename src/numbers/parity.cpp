#include "numbers/parity.h"

#include "text/clean_up_number.h"
#include "text/primitives.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {

HostValue IsOdd_Function(std::string_view num) {
  if (num.empty()) return false;
  if (!Is_Number_Text(num)) return num_token;
  // Some texts can be added and yet not be cleaned up, such as one with an exponent that stands for
  // more zeros than there is room.
  const type_CleanUp clean = Clean_Up_Number(num, true, false);
  if (clean.IsError) return num_token;
  return Ends_Odd(Integer_Part_Text(clean.NumClean));
}

HostValue IsEven_Function(std::string_view num) {
  const HostValue odd = IsOdd_Function(num);
  return odd.is_text() ? odd : HostValue(!odd.boolean());
}

}  // namespace quorvex
