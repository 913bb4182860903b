// Division of 128 bits by the base of limbs without a division instruction: N. Moeller, T.
// Granlund, "Improved division by invariant integers", IEEE Trans. Computers 60 (2011),
// algorithm 4. The divisor is shifted until its high bit is set.
#pragma once

#include <cstdint>

#include "native/generic/digit_words.h"
#include "native/generic/limbs.h"

namespace quorvex::native {

/// Takes one limb off a column; what is left is the carry into the next.
inline Limb Take_Limb(Wide& column) {
  constexpr unsigned shift = 4;
  constexpr std::uint64_t divisor = limb_base << shift;
  constexpr auto reciprocal = static_cast<std::uint64_t>(~Wide{0} / divisor - (Wide{1} << 64U));
  const auto high = static_cast<std::uint64_t>(column >> 64U);
  const std::uint64_t above = high / limb_base;
  const Wide shifted =
      ((Wide{high - above * limb_base} << 64U) | static_cast<std::uint64_t>(column)) << shift;
  const auto top = static_cast<std::uint64_t>(shifted >> 64U);
  const auto low = static_cast<std::uint64_t>(shifted);
  const Wide guess = Wide{reciprocal} * top + (Wide{top + 1} << 64U) + low;
  auto quotient = static_cast<std::uint64_t>(guess >> 64U);
  std::uint64_t rest = low - quotient * divisor;
  if (rest > static_cast<std::uint64_t>(guess)) {
    --quotient;
    rest += divisor;
  }
  if (rest >= divisor) {
    ++quotient;
    rest -= divisor;
  }
  column = (Wide{above} << 64U) + quotient;
  return rest >> shift;
}

}  // namespace quorvex::native
