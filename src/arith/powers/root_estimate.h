// Where the iterations of roots begin.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The root as 64-bit floats give it, with the 15 digits that a number has as text; that of a
/// negative radicand by its magnitude. "1" where floats give none: for operands beyond their range,
/// and for a root that is 0 to them.
NumberText Root_Estimate(const NumberText& radicand, const NumberText& degree);

}  // namespace quorvex
