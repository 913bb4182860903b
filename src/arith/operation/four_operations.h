// Sum, difference, product and quotient of two operands.
#pragma once

#include <cstdint>
#include <string_view>

#include "arith/operation/resolve_signs.h"
#include "host/host_value.h"
#include "text/decimal.h"
#include "text/options.h"

namespace quorvex {

/// The result of one of the four operations before it is formatted. Only quotients are cut at the
/// limit. Fails with type_mismatch for an operand of a sum or a difference that is no number; the
/// other two give a token for it, or what the digit routines make of it. An unknown operation gives
/// nothing.
Decimal Operate(const type_SignOp& reduced, double limit);

/// What the result of an operation at a limit is formatted by, where it is an intermediate value:
/// the limit with the guard digit of an operation, the ceiling of digits at most.
type_Restrictionator Intermediate_Format(double limit);

/// An intermediate value of one of the four operations at a limit: as `Do_Operation` gives it to a
/// worker that passes no options.
NumberText Intermediate(std::int16_t Operation, std::string_view number1, std::string_view number2,
                        double limit);

}  // namespace quorvex
