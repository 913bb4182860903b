// Addition of digits.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// The sum of two digit strings. Leading zeros stay; two empty texts give empty text. Fails with
/// type_mismatch for a character that is no digit.
NumberText Add_Digits(std::string_view operand1, std::string_view operand2);

/// The digits of the sum of two decimals, without a separator: it has as many fraction digits as
/// the longer fraction.
NumberText Add_Decimals(const Decimal_Parts& a, const Decimal_Parts& b);

}  // namespace quorvex
