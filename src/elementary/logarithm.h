// Logarithms.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The natural logarithm, by the series of the area tangent after scaling by a power of two:
/// ln x = 2 artanh((y - 1) / (y + 1)) + n ln 2 with y = x / 2^n. Every step is taken at `maxSD`
/// digits (`Default_MaxSD` where missing), without guard digits, so that the last ones can differ
/// from the exact value.
///
/// "0" for 1, in any spelling. "#NUM!" for what is not above 0, and beyond 40051 digits, which the
/// stored ln 2 has. "#VALUE!" for any failure: what is no number, options that can't be read, and
/// numbers too large or too small for 64-bit floats.
NumberText Ln_Function(const HostValue& num, const HostValue& exponential_notation,
                       const HostValue& maxSD);

/// The logarithm to a base, 10 where missing: the quotient of two natural ones. They are taken with
/// as many digits more than `maxSD` as the base says: 10 more to base 10, 2 to base 2, 100000 to
/// base 100000.
///
/// "0" for 1 to any base, even one that is none. "#NUM!" for what is not above 0, for such a base
/// (but "#VALUE!" below -`maxSD` - 1), and where `maxSD` and the base together are above 40051;
/// "#DIV/0!" for base 1. "#VALUE!" as `Ln_Function`.
NumberText Log_Function(const HostValue& num, const HostValue& num_base,
                        const HostValue& exponential_notation, const HostValue& maxSD);

}  // namespace quorvex
