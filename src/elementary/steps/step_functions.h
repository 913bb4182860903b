// What the functions of one number make of a number between two steps. All digits are kept.
#pragma once

#include "arith/operation/step_number.h"

namespace quorvex {

/// As `Int_Function`: the greatest whole number that is not above; "#VALUE!" for what is none.
Step_Number Floor_Of(const Step_Number& number);

/// As `Abs_Function`, `Neg_Function` and `ChangeSign_Function`: without its sign, with a minus
/// whatever it had, with the other one.
Step_Number Magnitude_Of(const Step_Number& number);
Step_Number Negative_Of(const Step_Number& number);
Step_Number Opposite_Of(const Step_Number& number);

}  // namespace quorvex
