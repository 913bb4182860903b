// Constants as numbers between steps.
#pragma once

#include "arith/operation/step_number.h"

namespace quorvex {

/// Pi with so many digits, cut, or the token where more are asked for than are stored. Fails below
/// -1 digits.
Step_Number Pi_Of(double digits);

}  // namespace quorvex
