#include "arith/limbs/short_product.h"

#include <algorithm>

#include "arith/limbs/limb_division.h"
#include "expects.h"

namespace quorvex::limbs {

void Multiply(Limb* out, const Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count) {
  Expects(std::min(a_count, b_count) <= 9 && a_count > 0 && b_count > 0);
  // A column is below 9 * 10^36, and what it passes on below 9 bases. It is parted before what it
  // gets is added, so that no column waits for those below it.
  Limb from_first_below = 0;
  Limb from_second_below = 0;
  Limb bases_of_first_below = 0;
  Limb carry = 0;
  const auto add = [&](Limb limb) {
    const Limb sum = limb + from_first_below + from_second_below + carry;
    carry = static_cast<Limb>(sum >= base) + static_cast<Limb>(sum >= 2 * base);
    from_second_below = bases_of_first_below;
    return sum - carry * base;
  };
  for (std::size_t place = 0; place + 1 < a_count + b_count; ++place) {
    const std::size_t end = std::min(place + 1, a_count);
    Wide column = 0;
    for (std::size_t i = place < b_count ? 0 : place - b_count + 1; i < end; ++i) {
      column += Wide{a[i]} * b[place - i];
    }
    const Limb limb = Take_Limb(column);
    out[place] = add(limb);
    const auto passed_on = static_cast<Limb>(column);
    bases_of_first_below = passed_on / base;
    from_first_below = passed_on - bases_of_first_below * base;
  }
  out[a_count + b_count - 1] = add(0);
}

}  // namespace quorvex::limbs
