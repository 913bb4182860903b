// Angles folded into the first quadrant.
#pragma once

#include "arith/operation/steps.h"

namespace quorvex {

struct type_Reduce90 {
  Step_Number Alpha;     // 0 to pi/2; the opposite of that for negative even quarter turns
  Step_Number Quadrant;  // 1 to 4
};

/// Folds an angle, given a quarter turn, `halfpi`, at the limit of the steps. The quotient by the
/// whole turns comes before the difference, which cancels as many digits as the count of turns has:
/// the further the angle, the fewer digits of `Alpha` are right.
///
/// An angle of so many turns that the limit can't count them gives any quadrant, and then an
/// `Alpha` of 0. Fails with type_mismatch for an angle or a `halfpi` that is no number.
type_Reduce90 Reduce_To_90(const Step_Number& num, const Step_Number& halfpi, const Steps& steps);

/// True if the quadrant is the one of that number.
bool Is_Quadrant(const Step_Number& quadrant, int number);

}  // namespace quorvex
