// What a division leaves.
#pragma once

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The worker of `qvxMOD`, `qvxMODTRUNC` and `qvxREMAINDER`: the dividend less the divisor times
/// the whole part of the quotient, which is cut towards zero if `truncate`, and down if not. The
/// difference is cut to the limit of the call and two digits more, and then to one more.
///
/// The sign is set apart from that: `sign` 1 gives the sign of the difference, 2 that of the
/// dividend, 3 and any other value that of the divisor, 4 none, 5 a minus. Missing, it is 3.
///
/// "#VALUE!" for an empty operand and for a dividend that is no number. "DIV/0!" for a divisor of
/// 0: without the mark of a token, it is an ordinary text to whatever comes after. Fails with
/// type_mismatch for a divisor that is no number, for a `truncate` that is missing or no boolean,
/// for an option that can't be read, for operands without text, and where the sign of an error
/// value is asked for.
NumberText Mod_Function(const HostValue& dividend, const HostValue& divisor,
                        const HostValue& truncate, const HostValue& sign,
                        const Format_Arguments& format);

}  // namespace quorvex
