// Products of a long operand that is cut into pieces.
#pragma once

#include <cstddef>

namespace quorvex::native {

/// Adds the points of a product to those from `to` on; those beyond `overlap` have not been set
/// yet.
static inline void Add_Points(double* to, const double* product, std::size_t count,
                              std::size_t overlap, double base) {
  double carry = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const double sum = product[i] + carry + (i < overlap ? to[i] : 0);
    carry = sum >= base ? 1 : 0;
    to[i] = sum - carry * base;
  }
}

}  // namespace quorvex::native
