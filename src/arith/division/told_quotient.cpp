#include "arith/division/told_quotient.h"

namespace quorvex {

std::optional<Bounds> Told_Quotient::Part_Lost(limbs::Fraction k, std::size_t p, const Loss& loss) {
  constexpr limbs::Limb tenth = limbs::base / 10;
  if (k.count == 1 && k[0] == tenth) return Bounds{1, 1};
  Told_Quotient inverse(p + more_of_reciprocal);
  inverse.divide({&tenth, 1}, k);
  return Lost_Part(inverse.behind(p), inverse.error_behind(p), loss);
}

}  // namespace quorvex
