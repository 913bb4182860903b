// Products of short numbers in limbs, column by column.
#pragma once

#include <cstddef>

#include "arith/limbs/limbs.h"

namespace quorvex::limbs {

/// The limbs of a factor, from the lowest; one at least.
struct Factor {
  const Limb* limbs;
  std::size_t count;
};

/// The limbs of a product from the column `first` on, which is even: columns below it are left
/// out, and limbs below it mean nothing. The shorter factor has 340 limbs at most.
void Multiply_Columns(Limb* out, Factor a, Factor b, std::size_t first);

}  // namespace quorvex::limbs
