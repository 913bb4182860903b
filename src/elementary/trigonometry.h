// Sine, cosine and tangent.
#pragma once

#include "host/host_value.h"

namespace quorvex {

// The workers of `qvxSIN`, `qvxCOS` and `qvxTAN`, for an angle in radians. All steps, and pi, are
// taken to `maxSD` digits (`Default_MaxSD` where missing) and no more, so the last digits of a
// result carry the rounding of all steps. A result below 10 to the minus `maxSD` is "0".
//
// Angles of a negative even count of quarter turns have the sine, if the count is a multiple of 4,
// and the tangent of the wrong sign: see `Reduce_To_90`.
//
// Fails with type_mismatch for an angle that is no number, blank ones among them, for a `maxSD`
// that can't be read, and for one beyond the digits of pi or of -1, which has none; with
// invalid_call for one whose nearest whole number is below -1; with too_complex where a series
// would never end, such as the sine of *0.0*. The angle "0" is answered before most of that.

/// The sine; "0" for the text "0".
NumberText Sin_Function(const HostValue& num, const HostValue& maxSD = Missing);

/// The cosine as text. The text "0" gives the number 0, which is not its cosine; other zeros, such
/// as *0.0*, give "1".
HostValue Cos_Function(const HostValue& num, const HostValue& maxSD = Missing);

/// The tangent as text; the number 0 for the text "0". It is 1 where the folded angle is 0 as a
/// float (*0.0* and 1E-400 too), and 1 or -1 for a right angle.
HostValue Tan_Function(const HostValue& num, const HostValue& maxSD = Missing);

}  // namespace quorvex
