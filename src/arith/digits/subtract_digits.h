// Subtraction of digits.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// A difference of magnitudes.
struct type_Subtraction {
  NumberText Difference;
  bool NegativeSubtraction = false;  // the second operand was the larger
};

/// The difference of two digit strings without leading zeros: the longer is taken for the larger.
/// No leading zeros are left but for "0" itself. With `allowNegative`, a "-" stands before a
/// negative difference. Fails with type_mismatch for a character that is no digit.
type_Subtraction Subtract_Digits(std::string_view operand1, std::string_view operand2,
                                 bool allowNegative);

/// The digits of the difference of two decimals, without a separator: it has as many fraction
/// digits as the longer fraction, and no leading zeros.
type_Subtraction Subtract_Decimals(const Decimal_Parts& a, const Decimal_Parts& b);

}  // namespace quorvex
