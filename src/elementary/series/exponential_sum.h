// e to a small power by fewer and longer steps than its definition takes.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex {

/// e^r - 1 for an r from 10^-18 to below 0.1, less than 10^-(digits + 4) off.
///
/// The argument is halved h times, and Taylor's series summed by groups of m powers, each Horner's
/// scheme with small divisors and one product; then (1 + y)^2 - 1 = y (2 + y) undoes the halvings.
/// (D. M. Smith, Efficient multiple-precision evaluation of elementary functions, Math. Comp. 52
/// (1989), takes the groups crosswise.)
///
/// In units of the last limb: halvings cut off two. A power is a product of two others, all below
/// 0.1, and wrong by less than two. A step of Horner's scheme adds a power, divides by two or more
/// and is cut off: what it is wrong by stays below four, a product with a power below 0.1 makes it
/// less than two, and the last step, which divides nothing, less than eight, with the terms that
/// are left out. A square doubles that times 1 + y, and all 1 + y together are below 1.24, and adds
/// one: that is below 2^(h + 4).
limbs::Number Exponential_Less_One(const limbs::Number& r, std::size_t digits);

}  // namespace quorvex
