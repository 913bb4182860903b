// Roots of any degree by Newton's iteration.
#pragma once

#include "arith/powers/newton_work.h"
#include "host/host_value.h"

namespace quorvex {

/// Iterates from `start` until two values in a row agree to `maxSD` less one characters, and gives
/// the first of the two. A value of 0 is replaced by the time of day, which begins anew from
/// somewhere. A token of a step is the result, and so is "#NUM!" where values come back too often
/// among the last ten. Fails with too_complex where they come back in a longer circle, and at once
/// where the way to the root can be seen to be longer than anybody waits.
NumberText Newton_Root(const NumberText& radicand, const NumberText& degree, NumberText start,
                       const Newton_Limits& limits);

}  // namespace quorvex
