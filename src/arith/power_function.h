// Powers.
#pragma once

#include "arith/scaled_number.h"
#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// What a power is asked for beside its operands.
struct Power_Options {
  double maxSD = 0;  // the limit of the operation, with the guard digit that it adds
  /// Refuses operands that have more than half the ceiling of digits together.
  bool restrict_input_lengths = false;
  /// The guard digits of the products; missing, as many as both operands have.
  const HostValue& working_digits = Missing;
};

/// The power, before the operation rounds it. An exponent of 0 gives 1, whatever the base is; then
/// a base of 0 gives "0", also to a negative exponent.
///
/// Tokens: that of a base that is no number; "#NUM!" for a negative base with a fractional
/// exponent, for operands that are too long where they are restricted, and for a power with more
/// integer digits than a text can have. Fails with type_mismatch for an exponent that is no number,
/// with invalid_call for a fractional one, which has no routine yet, and with too_complex for one
/// whose splits are split more than a thousand deep. An exponent that is longer than the limit can
/// take any time, but yields.
Scaled_Number Power_Function(const Operand& base, const Operand& exponent,
                             const Power_Options& options);

}  // namespace quorvex
