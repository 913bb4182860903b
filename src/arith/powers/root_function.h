// Roots.
#pragma once

#include "arith/operation/step_options.h"
#include "arith/powers/newton_root.h"
#include "host/host_value.h"
#include "text/decimal.h"
#include "text/operand.h"

namespace quorvex {

/// The root of a degree, which may be fractional or negative, before the operation
/// rounds it. It is that of an iteration which ends when its digits stand still, and its
/// last ones are those of the round before the last.
///
/// Tokens: "DIV/0!", without the mark, for a degree of 0; "#NUM!" for a negative radicand whose
/// degree isn't an odd whole number, for operands that are too long where they are restricted, and
/// for an iteration that turns in a circle; that of an operand that is no number. Fails with
/// too_complex for an iteration that can be seen never to end, or later than anybody waits for.
Decimal Root_Function(const Operand& radicand, const Operand& degree, const Step_Options& options,
                      Power_Step power);

/// The same for what `Clean_Number` gives.
Decimal Root_Of_Number(const Step_Number& radicand, const Step_Number& degree,
                       const Step_Options& options, Power_Step power);

}  // namespace quorvex
