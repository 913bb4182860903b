// Roots by Newton's method for their reciprocals, at rising precision.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex {

struct Root_And_Inverse {
  limbs::Number root;
  limbs::Number inverse;
};

/// Degrees beyond are left to others.
inline constexpr limbs::Limb highest_quick_degree = 1000;

/// The root of a number above 0 and its reciprocal, both wrong by less than 10^-digits of
/// themselves. The degree is 2 to `highest_quick_degree`.
Root_And_Inverse Find_Root(const limbs::Number& radicand, limbs::Limb degree, std::size_t digits);

/// The square root of a number above 0, and the reciprocal of that, wrong by as little.
limbs::Number Find_Square_Root(const limbs::Number& radicand, std::size_t digits);
limbs::Number Find_Inverse_Square_Root(const limbs::Number& radicand, std::size_t digits);

}  // namespace quorvex
