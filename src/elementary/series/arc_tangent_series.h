// The series of the arc tangent.
#pragma once

#include "arith/operation/steps.h"

namespace quorvex {

/// x - x^3/3 + x^5/5 - ... (Gregory's series), each step an operation at the limit, up to the first
/// power of x whose leading digit stands behind the decimal place that the limit names. The divisor
/// plays no part in that, so the last term added is smaller still. 0 is answered at once.
///
/// "#VALUE!" where the limit is beyond what division can take. Fails with too_complex for text that
/// is 0 otherwise and for a token, whose terms would never end.
Step_Number ATan_Series(const Step_Number& x, const Steps& steps);

}  // namespace quorvex
