// How division rounds a quotient that is known to lie within bounds.
#pragma once

#include <cstddef>
#include <optional>

namespace quorvex {

/// Division works out so many digits behind those that it keeps, and rounds by the first of them.
inline constexpr std::size_t division_guard_digits = 3;

/// What becomes of the digits that are kept.
enum class Told_Rounding { stays, is_raised, in_doubt };

struct Bounds {
  double low;
  double high;
};

/// For a quotient whose digits go on, behind the kept ones, between bounds that are counted in
/// units of the third of them: from -50 to 1000. Digits that are borrowed from round up to what
/// they were.
Told_Rounding Round_Between(double low, double high);

/// What the definition takes off the exact quotient, in the same units: the part g/k of `most`,
/// which is what the leading digits of the dividend come to, with the point behind the first one,
/// or a tenth of that where they aren't below those of the divisor.
struct Loss {
  double most;
  bool may_be_double;  ///< the reciprocal may be one less
};

/// The part by what follows the reciprocal's digits, as a fraction of the last one that may be too
/// low by `error`. Nothing where it might be 0 as well as 1, or the reciprocal one less.
std::optional<Bounds> Lost_Part(double behind, double error, const Loss& loss);

/// The rounding for a quotient whose exact digits go on between bounds. `lost_part` is asked if it
/// matters.
template <typename Lost_Part_Finder>
Told_Rounding Round_Less(Bounds guard, const Loss& loss, const Lost_Part_Finder& lost_part) {
  const double most = loss.may_be_double ? 2 * loss.most : loss.most;
  const Told_Rounding rounding = Round_Between(guard.low - most, guard.high);
  if (rounding != Told_Rounding::in_doubt) return rounding;
  const std::optional<Bounds> part = lost_part();
  if (!part) return rounding;
  return Round_Between(guard.low - loss.most * part->high, guard.high - loss.most * part->low);
}

}  // namespace quorvex
