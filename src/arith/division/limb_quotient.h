// Quotients of numbers in limbs by numbers of one limb.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex::limbs {

/// a / b as division gives it to `digits_kept` digits: the first ones of a times the reciprocal
/// of b in three digits more. False, and no result, where b is not one limb, and where digits are
/// too close to a border for this way of telling them.
bool Divide(const Number& a, const Number& b, std::size_t digits_kept, Number& result);

}  // namespace quorvex::limbs
