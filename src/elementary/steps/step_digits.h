// Limits of steps in limbs.
#pragma once

#include <cmath>
#include <cstddef>
#include <optional>

namespace quorvex {

/// A limit that is a count of digits which limbs take: a whole number from 1 to a million.
inline std::optional<std::size_t> Whole_Digits_Of(double limit) {
  constexpr double most = 1'000'000;
  if (!(limit >= 1 && limit <= most) || std::trunc(limit) != limit) return std::nullopt;
  return static_cast<std::size_t>(limit);
}

}  // namespace quorvex
