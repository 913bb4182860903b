// Square roots of numbers, and of their multiples of pi.
#pragma once

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

enum class Radicand { number, multiple_of_pi };

/// The square root to the limit among the options, the default where it is missing or empty. The
/// root of a multiple of pi takes as many digits of pi as the limit says. "#NUM!" for a negative
/// number, told by its first character, and beyond the digits of pi; the token of arithmetic for
/// what is no number. Fails with type_mismatch for an error value, which has no sign, and for an
/// option that can't be read.
NumberText Sqrt_Function(const HostValue& num, Radicand radicand, const Format_Arguments& format);

}  // namespace quorvex
