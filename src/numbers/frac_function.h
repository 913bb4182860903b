// The fraction of a number.
#pragma once

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The worker of `qvxFRAC`: what stands right of the decimal separator, as a fraction or, with
/// `as_int`, as a whole number. `sign` 1 gives it the sign of `num`, 2 none, 3 a minus. Cut to the
/// limit and one digit more.
///
/// Nothing checks `num`: text is cut at its first separator whatever stands behind, and text
/// without one, a token among it, gives "0". Only a number in E notation or in parentheses is
/// written out first.
///
/// Fails with type_mismatch for a `sign`, an `as_int` or an option that can't be read, for a value
/// without text, and where the sign of an error value is asked for; with overflow for a `sign`
/// beyond 16 bits.
NumberText Frac_Function(const HostValue& num, const HostValue& as_int, const HostValue& sign,
                         const Format_Arguments& format);

}  // namespace quorvex
