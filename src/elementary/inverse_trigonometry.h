// The arcs of tangent, sine and cosine.
#pragma once

#include "host/host_value.h"

namespace quorvex {

// The workers of `qvxATAN`, `qvxASIN` and `qvxACOS`, in radians. All steps, and pi, are taken to
// `maxSD` digits (`Default_MaxSD` where missing) and no more. Beyond the digits of pi the results
// that need pi are "#NUM!".
//
// Fails with type_mismatch for a number that is none and for a `maxSD` that can't be read, with
// invalid_call for one below -1, with too_complex where a series would never end: the arc tangent
// of *0.0*.

/// The arc tangent as text, of any number.
HostValue ATan_Function(const HostValue& num, const HostValue& maxSD = Missing);

/// The arc sine as text; "#NUM!" for a magnitude above 1. Fails with type_mismatch for a number
/// that isn't 1 or -1 but so near that the limit can't tell its square from 1.
HostValue ASin_Function(const HostValue& num, const HostValue& maxSD = Missing);

/// The arc cosine as text, but the number 0 for 1; "#NUM!" for a magnitude above 1. Numbers that
/// are 0, 1 or -1 as floats count as these: so is 0.99999999999999999999. For -1 that is pi, cut
/// and not rounded; for a blank, pi * 0.5. Fails with type_mismatch or overflow for what is no
/// float.
HostValue ACos_Function(const HostValue& num, const HostValue& maxSD = Missing);

}  // namespace quorvex
