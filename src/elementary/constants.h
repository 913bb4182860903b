// Pi, e and the two logarithms that the elementary functions need, served from stored digits.
#pragma once

#include "arith/operation/step_number.h"
#include "host/host_value.h"

namespace quorvex {

/// A constant cut to so many digits, with the locale's separator: *3.1415* for 5. Nothing is
/// rounded, and the leading "0" of ln 2 counts as a digit. 0 digits give the integer digit alone,
/// 1 the separator as well, -1 empty text; the count is made whole first, halves to even.
///
/// "#NUM!" beyond 32768 digits of pi and e (32767 are the whole text) and 40051 of the logarithms,
/// and for text that is no number. Fails with invalid_call or overflow for a count below -1, with
/// type_mismatch for a value that has no number.
HostValue Pi_Digits(const HostValue& digits);
HostValue E_Digits(const HostValue& digits);
HostValue Ln2_Digits(const HostValue& digits);
HostValue Ln10_Digits(const HostValue& digits);

/// Pi as a number between steps, or the token.
Step_Number Pi_Of(double digits);

}  // namespace quorvex
