// Quotients limb by limb, from the highest on.
#pragma once

#include <cstddef>
#include <string_view>

#include "arith/limbs/limbs.h"

namespace quorvex::limbs {

/// Limbs behind a point, the highest first. All further ones are 0.
struct Fraction {
  const Limb* limbs = nullptr;
  std::size_t count = 0;

  Limb operator[](std::size_t place) const { return place < count ? limbs[place] : 0; }
};

/// The first digits of a fraction, behind as many zeros: `count` limbs of it, or fewer if there are
/// no more. `zeros` is less than the digits of a limb.
Fraction Read_Down(std::string_view text, std::size_t zeros, std::size_t count, Limb* out);

/// More limbs than this of both divisor and quotient would pass what a column of their products may
/// hold.
inline constexpr std::size_t most_quotient_limbs = 150;

/// The first `count` limbs of x / d, highest first: too low by less than 2.2 units of the last of
/// them, and not too high. x is less than d, and the first digit of d is not 0. Limbs behind the
/// first count + 1 are not looked at.
void Divide_Fractions(Fraction x, Fraction d, std::size_t count, Limb* quotient);

/// A number of two limbs.
struct Pair {
  Limb high;
  Limb low;

  Wide wide() const { return Wide{high} * base + low; }
};

/// The same of two limbs for x and d each, and a further one of x.
Pair Divide_Pairs(Pair x, Limb further, Pair d);

}  // namespace quorvex::limbs
