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
/// divisor is not 0. Fails with invalid_call where products can't be formed, as the quotient and
/// the product would, and with out_of_memory.
///
/// It is what the three operations give: the quotient to as many digits as both texts have together
/// and six more, cut; its product with the divisor; the difference. Let D be the divisor as a whole
/// number, both operands scaled by the same power of ten, I the integer digits of the quotient Q.
/// The texts are long enough for I and the digits of D together, but for one. If Q is not whole, it
/// lies 1/D or more from any whole number. Rounded to so many digits it moves by 10^-4/D at most,
/// and does not reach one. If Q is whole, the quotient comes out exactly: the product with the
/// reciprocal, three digits longer, is less than eleven units of its last place below Q, begins
/// with the digits of Q less one and a run of nines, and is rounded up. The product has no more
/// digits than its limit, and the difference is cut only where the result is.
Exact_Remainder Remainder_Of(const Operand& dividend, const Operand& divisor, Quotient_Cut cut);

}  // namespace quorvex
