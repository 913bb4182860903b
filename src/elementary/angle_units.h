// Degrees and radians.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// An angle in the other unit. Pi and the quotient are taken to `maxSD` digits (`Default_MaxSD`
/// where missing) and no more, so that the last digits can differ from the exact value. "#NUM!"
/// beyond the digits of pi, a token for an angle that is none. Fails with type_mismatch for a
/// `maxSD` that can't be read, with invalid_call for one below -1.
NumberText Radians_Function(const NumberText& degrees, const HostValue& maxSD);
NumberText Degrees_Function(const NumberText& radians, const HostValue& maxSD);

}  // namespace quorvex
