// Roots of any degree by Newton's iteration.
#pragma once

#include "arith/operation/steps.h"
#include "arith/powers/newton_work.h"
#include "text/decimal.h"

namespace quorvex {

/// What a power is worked out with at the limit of the steps. Roots are handed it, since a power
/// whose exponent is a fraction is a root in its turn.
using Power_Step = Step_Number (*)(const Step_Number& base, const Step_Number& exponent,
                                   const Steps& steps);

/// Iterates from `start` until two values in a row agree to `maxSD` less one characters, and gives
/// the first of the two, of which `maxSD` and one digit count: others may be left out. A value of 0
/// is replaced by the time of day, which begins anew from somewhere. A token of a step is the
/// result, and so is "#NUM!" where values come back too often among the last ten. Fails with
/// too_complex where they come back in a longer circle, and at once where the way to the root can
/// be seen to be longer than anybody waits.
Decimal Newton_Root(const Step_Number& radicand, const Step_Number& degree, Step_Number start,
                    const Newton_Limits& limits, Power_Step power);

}  // namespace quorvex
