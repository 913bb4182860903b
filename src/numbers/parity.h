// Whether a number is odd.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The worker of `qvxISODD`: a boolean, by the last digit left of the separator. False for empty
/// text, and the text "#NUM!" for what is no number.
HostValue IsOdd_Function(std::string_view num);

/// The worker of `qvxISEVEN`: the opposite, so that empty text is even; or the token.
HostValue IsEven_Function(std::string_view num);

/// True if the last digit of a whole number is odd.
inline bool Ends_Odd(std::string_view whole) {
  return (whole.back() - '0') % 2 != 0;
}

}  // namespace quorvex
