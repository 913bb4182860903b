// The reciprocal of a number of few limbs, by long division.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/limbs/limbs.h"

namespace quorvex::limbs {

/// Divides base^n by `divisor`, a number of `n` limbs whose highest digit isn't 0 and which is no
/// power of ten. `quotient` gets `count` limbs, the highest first: the first of them,
/// 1 to 9, is the whole part. Each further one stands for eighteen digits behind the point. `rest`
/// has room for n limbs. True if the division leaves no rest.
bool Divide_Into_One(const Limb* divisor, std::size_t n, Limb* quotient, std::size_t count,
                     std::int64_t* rest);

}  // namespace quorvex::limbs
