// Square roots by the mean of a value and its quotient.
#pragma once

#include "arith/operation/step_number.h"
#include "text/decimal.h"

namespace quorvex {

/// Iterates from `start`: the quotient of the radicand by the value, and the mean of both as the
/// next value, until their digits agree as far as a limit of `maxSD` asks, which is one more than
/// the caller's. The result is the quotient, cut where they agreed. Two that are less than one unit
/// of the caller's last digit apart may never agree, as 0.999 and 1: when their difference has not
/// become less three times, the quotient is cut at the limit, or is one of them if that is the
/// other one rounded. A token of a step is the result, and so is "#NUM!" where a difference that is
/// greater shrinks no more: of a negative radicand.
Decimal Mean_Root(const Step_Number& radicand, const Step_Number& start, double maxSD);

}  // namespace quorvex
