// How many digits the steps of a chain keep, and the ceiling of limits.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "text/options.h"

namespace quorvex {

/// What sums and products at a limit keep, two digits more than it says.
constexpr double Kept_Digits(double limit) {
  constexpr double guard_digits = 2;
  return limit + guard_digits;
}

/// The limit, or the ceiling of limits if it is above that.
inline double Up_To_Ceiling(double limit) {
  return std::fmin(limit, maximum_digits);
}

/// A limit that is a count of digits which limbs take: a whole number from 1 to a million.
inline std::optional<std::size_t> Whole_Digits_Of(double limit) {
  constexpr double most = 1'000'000;
  if (!(limit >= 1 && limit <= most) || std::trunc(limit) != limit) return std::nullopt;
  return static_cast<std::size_t>(limit);
}

}  // namespace quorvex
