// How the digits of factors are cut for transforms of waves: groups of digits in two points each,
// which are balanced, from about -base/2 to base/2.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvex::native {

struct Grain {
  std::size_t digits;  ///< of a group
  std::int64_t base;   ///< of a point
};

inline constexpr Grain coarse_grain = {10, 100'000};
inline constexpr Grain fine_grain = {8, 10'000};

static constexpr std::size_t Groups_For(std::size_t digits, const Grain& grain) {
  return (digits + grain.digits - 1) / grain.digits;
}

/// Two points for each group, and one for what balancing the last carries.
static constexpr std::size_t Grains_For(std::size_t digits, const Grain& grain) {
  return 2 * Groups_For(digits, grain) + 1;
}

}  // namespace quorvex::native
