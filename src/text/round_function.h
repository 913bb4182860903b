// Rounding to a count of decimal places.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

enum class Rounding_Direction { nearest, up, down };

/// Rounds `num` to `num_digits` decimal places, or with a negative count to a power of ten: to the
/// nearest by the first dropped digit alone (half goes up in magnitude), up away from zero, or down
/// towards it. The result is formatted; a limit among the options is not looked at.
///
/// The count is cut to a whole one, and a negative count acts one place short: -1 rounds to ones,
/// -2 to tens. Rounding up never gives less than one unit of the last place.
///
/// "#VALUE!" for empty text, for what is no number, and for a count below -32767. Fails with
/// type_mismatch for an option that can't be read.
NumberText Round_Function(std::string_view num, double num_digits, Rounding_Direction direction,
                          const Format_Arguments& format);

/// The count of places as an argument gives it: 0 where it is missing, blank or empty text.
double Places_Of(const HostValue& num_digits);

}  // namespace quorvex
