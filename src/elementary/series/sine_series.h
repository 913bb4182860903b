// The series of sine, cosine and tangent.
#pragma once

#include "arith/operation/steps.h"

namespace quorvex {

// Taylor's series, each step an operation at the limit without any guard digits, up to the first
// term whose leading digit stands behind the decimal place that the limit names. The argument is a
// number in any form that can be compared. There is no limit on the count of terms, but every one
// yields: an argument of a thousand has five hundred terms before they get smaller.
//
// Fails with too_complex where a term is 0 or a token, since then no term ends the series.

/// x - x^3/3! + x^5/5! - ... 0 is answered at once; text that is 0 otherwise fails.
Step_Number Sin_Series(const Step_Number& x, const Steps& steps);

/// 1 - x^2/2! + x^4/4! - ... An argument that is 0 as a float gives 1. Fails with type_mismatch
/// or overflow for one that is no float.
Step_Number Cos_Series(const Step_Number& x, const Steps& steps);

/// The quotient of both. It gives 1 for an argument that is 0 as a float: that is how the tangent
/// of a right angle comes to be 1 or -1 and no error. Otherwise as `Cos_Series`; a token of the
/// quotient is the result.
Step_Number Tan_Series(const Step_Number& x, const Steps& steps);

}  // namespace quorvex
