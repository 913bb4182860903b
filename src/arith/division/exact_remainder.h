// Remainders of exact division.
#pragma once

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// How a quotient is made whole.
enum class Quotient_Cut { down, towards_zero };

/// The digits of a remainder without leading zeros, "0" for 0, and the place of its separator from
/// the right end.
struct Exact_Remainder {
  NumberText digits;
  double position = 1;
  bool negative = false;
};

/// The dividend less the divisor times the whole part of the quotient. Both are numbers, the
/// divisor is not 0. Fails with invalid_call where products can't be formed, which dividing takes,
/// and with out_of_memory.
///
/// It is defined by three operations: the quotient, to as many digits as both texts have together
/// (those of a number in E notation written out) and six more, made whole; its product with the
/// divisor; the difference. The proof that this is the same stands with the code.
Exact_Remainder Remainder_Of(const Operand& dividend, const Operand& divisor, Quotient_Cut cut);

}  // namespace quorvex
