// Rounding that works on characters and not on significant digits.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// Rounds `num` to `n` characters, half up in magnitude by the first dropped digit alone, and fills
/// what was cut with zeros, so that the text keeps its length.
///
/// The separator doesn't count, nor do the zeros of a text *0.00ddd* that stand between separator
/// and first significant digit. With the separator beyond `n` the fraction is thrown away. A text
/// that is short enough comes back unchanged. `n` is made whole first, halves to even. Gives
/// "#VALUE!" for a count that leaves nothing (0 or less, of digits), and for a character that is no
/// digit where one has to be read.
NumberText Round_To_Length(NumberText num, double n);

}  // namespace quorvex
