#include "arith/division/limb_reciprocal.h"

#include <algorithm>

#include "arith/limbs/limb_long_division.h"
#include "expects.h"

namespace quorvex::limbs {
namespace {

// Passes on what limbs of a quotient, the highest first, hold beyond the base.
void Pass_Carries_Left(Limb* quotient, std::size_t count) {
  for (std::size_t place = count - 1; place > 0; --place) {
    if (quotient[place] < base) continue;
    quotient[place] -= base;
    ++quotient[place - 1];
  }
}

}  // namespace

bool Divide_Into_One(const Limb* divisor, std::size_t n, Limb* quotient, std::size_t count,
                     std::int64_t* rest) {
  Expects(n >= 2 && count > 0);
  std::fill_n(rest, n - 1, 0);
  rest[n - 1] = 1;
  Long_Division division(divisor, n, rest);
  for (std::size_t place = 0; place < count; ++place) quotient[place] = division.next(0);
  if (division.settle()) ++quotient[count - 1];
  Pass_Carries_Left(quotient, count);
  return std::all_of(rest, rest + n, [](Signed_Limb limb) { return limb == 0; });
}

}  // namespace quorvex::limbs
