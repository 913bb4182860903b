// Remainders of exact division.
#pragma once

#include "text/decimal.h"
#include "text/operand.h"

namespace quorvex {

/// How a quotient is made whole.
enum class Quotient_Cut { down, towards_zero };

/// The dividend less the divisor times the whole part of the quotient, without leading zeros. Both
/// are numbers, the divisor is not 0. Fails with invalid_call where products can't be formed, which
/// dividing takes, and with out_of_memory.
///
/// It is defined by three operations: the quotient, to as many digits as both texts have together
/// (those of a number in E notation written out) and six more, made whole; its product with the
/// divisor; the difference. The proof that this is the same stands with the code.
Decimal Remainder_Of(const Operand& dividend, const Operand& divisor, Quotient_Cut cut);

}  // namespace quorvex
