// Quotients of numbers in limbs by numbers of more than one.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex::limbs {

/// a / b as division gives it to `digits_kept` digits, as `Quick_Quotient` does for digits. False,
/// and no result, where b has one limb only, and where this isn't the way to them.
bool Divide_By_Many(const Number& a, const Number& b, std::size_t digits_kept, Number& result);

}  // namespace quorvex::limbs
