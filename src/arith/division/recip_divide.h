// Division: the dividend times the reciprocal of the divisor.
#pragma once

#include <cstdint>
#include <string_view>

#include "arith/division/reciprocal.h"
#include "host/host_value.h"
#include "text/decimal.h"

namespace quorvex {

/// The quotient of two whole numbers to `sd` significant digits, as digits and a power of ten; the
/// texts are replaced by their cleaned forms. A divisor of "1", or one that is the dividend, and a
/// dividend of 0 are answered at once and not cut.
///
/// Tokens, as `digits`: that of an operand that is no number ("#NUM!", "#VALUE!"), "#DIV/0!" for a
/// divisor of 0, "#VALUE!" where products can't be formed, which is cut to `sd` characters if `sd`
/// is 4 or more, and to three more if it is less. Any other failure ends the routine with what it
/// has.
type_Division_Recip Recip_Divide(NumberText& X, NumberText& Y, std::int32_t sd);

/// The same for digits without leading zeros, "0" for 0.
Decimal Divide_Digits(std::string_view X, std::string_view Y, std::int32_t sd);

/// The same for texts, as `Recip_Divide` takes them.
Decimal Divide_Texts(NumberText& X, NumberText& Y, std::int32_t sd);

/// The place of a quotient's separator by the lengths of two digit strings. Despite their names the
/// first is the number that is divided, and the second the one divided by.
double DivisionDecimalPosition(const NumberText& divisor, const NumberText& dividend);

/// The lesser, or the greater, of two values as numbers; the second one where they are equal.
HostValue Min(const HostValue& num1, const HostValue& num2);
HostValue Max(const HostValue& num1, const HostValue& num2);

/// The half of a whole number, rounded down.
HostValue GetHalfofLong(std::int32_t num_as_long);

}  // namespace quorvex
