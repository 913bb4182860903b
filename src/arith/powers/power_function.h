// Powers.
#pragma once

#include <string_view>

#include "arith/operation/step_options.h"
#include "arith/operation/steps.h"
#include "host/host_value.h"
#include "text/decimal.h"
#include "text/operand.h"

namespace quorvex {

/// The power, before the operation rounds it. An exponent of 0 gives 1, whatever the base is; then
/// a base of 0 gives "0", also to a negative exponent.
///
/// A fractional exponent is reduced to a fraction: the power is a whole power of a root.
///
/// Tokens: that of a base that is no number; "#NUM!" for a negative base with a fractional
/// exponent, for operands that are too long where they are restricted, and for a power with more
/// integer digits than a text can have. Fails with type_mismatch for an exponent that is no number,
/// and with too_complex for one whose splits are split more than a thousand deep. An exponent that
/// is longer than the limit can take any time, but yields.
Decimal Power_Function(const Operand& base, const Operand& exponent, const Step_Options& options);

/// The power and the root at the limit of the steps.
Step_Number Power(const Step_Number& base, const Step_Number& exponent, const Steps& steps);
Step_Number Root(const Step_Number& radicand, const Step_Number& degree, const Steps& steps);

/// The root as a result before it is formatted.
Decimal Root_Digits(const Step_Number& radicand, const Step_Number& degree, const Steps& steps);

/// The power, and "#NUM!" for operands that have more than half the ceiling of digits together.
Step_Number Restricted_Power(const Step_Number& base, const Step_Number& exponent,
                             const Steps& steps);

}  // namespace quorvex
