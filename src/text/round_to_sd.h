// Rounding of number text to a count of significant digits.
#pragma once

#include <cstdint>

#include "host/host_value.h"

namespace quorvex {

/// Rounds `num` to `maxSD` significant digits, half up by the first dropped digit alone, and keeps
/// the length of the text, so that a carry out of all nines shows by one character more. Trailing
/// zeros of a whole number don't use up the count; a zero before the separator does, and so do
/// zeros behind it.
///
/// Gives the number 0 for a `maxSD` below 1, a token as itself, and text otherwise, with no
/// trailing zeros in a fraction; what reduces to a lone zero on the way can become empty. Fails
/// with type_mismatch for a character that is no digit where one has to be read.
HostValue Round_To_SD(NumberText num, const HostValue& maxSD);

/// The same for digits that begin with none that is 0, and a `maxSD` of 1 or more.
void Round_Digits(NumberText& digits, std::int32_t maxSD);

}  // namespace quorvex
