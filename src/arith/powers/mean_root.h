// Square roots by the mean of a value and its quotient.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// Iterates from `start`: the quotient of the radicand by the value, and the mean of both as the
/// next value, until their digits agree as far as a limit of `maxSD` asks. The result is the
/// quotient, cut where they agreed. A token of a step is the result, and so is "#NUM!" where the
/// difference of the two shrinks no more.
NumberText Mean_Root(const NumberText& radicand, NumberText start, double maxSD);

}  // namespace quorvex
