// The digits that are carried beyond a limit.
//
// An operation works at its limit and a guard digit, and formatting keeps one digit more than what
// it is told: so results have two digits beyond the limit, and quotients, which are cut before they
// are formatted, one.
#pragma once

#include <cmath>
#include <cstddef>

#include "text/options.h"

namespace quorvex {

/// The limit that an operation works at.
constexpr double With_Guard_Digit(double limit) {
  return limit + 1;
}

/// The significant digits of a result that isn't a quotient.
constexpr double Digits_Of_Result(double limit) {
  return limit + 2;
}

/// The same for whole limits.
constexpr std::size_t Digits_Of_Result(std::size_t limit) {
  return limit + 2;
}

/// The significant digits of a quotient.
constexpr std::size_t Digits_Of_Quotient(std::size_t limit) {
  return limit + 1;
}

/// What formatting keeps of what it is told.
constexpr double Digits_Formatted(double maxSD) {
  return maxSD + 1;
}

/// No limit is above the ceiling of digits.
inline double Up_To_Ceiling(double limit) {
  return std::fmin(limit, maximum_digits);
}

}  // namespace quorvex
