// What a round of the mean iteration makes of a value near the root, or on its way there.
#pragma once

#include <cstddef>
#include <optional>

#include "arith/division/told_rounding.h"
#include "arith/limbs/limb_number.h"
#include "arith/powers/leading_digits.h"

namespace quorvex {

// Of the guard digits that division rounds by, in a unit.
inline constexpr double guard_units = 1000;

// Digits of a root that are found beyond those of a quotient.
inline constexpr std::size_t beyond_quotient = 13;

// What floats of guard digits may be wrong by, in thousandths of a unit, the digits of the root
// among it.
inline constexpr double safe_guards = 1e-5;

/// A value on the way to the root, root (1 + e), and the rounds to it. e is known to `error` of
/// itself.
struct Far_Value {
  Leading_Digits e;
  double error = 0;
  int rounds = 0;
};

/// The first value, from the one given on, whose square of e is below 10^(8 - D), D being the
/// digits of a quotient. Nothing if that is the one given, and so near that its quotient may agree
/// with it.
std::optional<Far_Value> Way_To_Root(const limbs::Number& value, const limbs::Number& root,
                                     std::size_t digits);

/// The sum of that value and its quotient, as division rounds it: so many whole units and perhaps
/// one more beyond those of the twofold root, of which `guards` thousandths are known behind.
struct Rounded_Sum {
  double units = 0;
  Told_Rounding rounding = Told_Rounding::in_doubt;
};

/// Nothing where even that can't be told.
std::optional<Rounded_Sum> Sum_With_Quotient(const Far_Value& value, double guards,
                                             double root_mantissa, std::size_t digits);

/// How many thousandths of a unit a quotient loses by a reciprocal that is cut, at most.
inline double Most_Lost(double root_mantissa) {
  return root_mantissa * root_mantissa / 10;
}

}  // namespace quorvex
