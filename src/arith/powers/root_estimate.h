// Where the iterations of roots begin.
#pragma once

#include "arith/operation/step_number.h"

namespace quorvex {

/// The root as 64-bit floats give it, with the 15 digits that a number has as text; that of a
/// negative radicand by its magnitude. 1 where floats give none: for operands beyond their range,
/// and for a root that is 0 to them.
Step_Number Root_Estimate(const Step_Number& radicand, const Step_Number& degree);

}  // namespace quorvex
