// Powers.
#pragma once

#include "arith/operation/scaled_number.h"
#include "arith/operation/step_options.h"
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
Scaled_Number Power_Function(const Operand& base, const Operand& exponent,
                             const Step_Options& options);

}  // namespace quorvex
