// Addition of digits.
#pragma once

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// The digits of the sum of two decimals, without a separator: it has as many fraction digits as
/// the longer fraction.
NumberText Add_Decimals(const Decimal_Parts& a, const Decimal_Parts& b);

}  // namespace quorvex
