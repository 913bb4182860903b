// Products of a number by one of few limbs.
#pragma once

#include <cstddef>

#include "arith/limbs/limbs.h"

namespace quorvex::limbs {

/// out = a b, in the sum of their counts of limbs.
void Multiply(Limb* out, const Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count);

}  // namespace quorvex::limbs
