// Subtraction of digits.
#pragma once

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// A difference of magnitudes.
struct type_Subtraction {
  NumberText Difference;
  bool NegativeSubtraction = false;  // the second operand was the larger
};

/// The digits of the difference of two decimals, without a separator: it has as many fraction
/// digits as the longer fraction, and no leading zeros.
type_Subtraction Subtract_Decimals(const Decimal_Parts& a, const Decimal_Parts& b);

}  // namespace quorvex
