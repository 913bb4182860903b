// The series of the arc tangent.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// x - x^3/3 + x^5/5 - ... (Gregory's series), each step an operation at `maxSD` digits, up to the
/// first power of x whose leading digit stands behind the decimal place `maxSD`. The divisor plays
/// no part in that, so the last term added is smaller still. The text "0" is answered at once.
///
/// "#VALUE!" where the limit is beyond what division can take. Fails with too_complex for any other
/// zero and for a token, whose terms would never end.
NumberText ATan_Series(const NumberText& x, double maxSD);

}  // namespace quorvex
