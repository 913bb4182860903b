// The sizes of a series' terms by floats: how large they are, and how many there are.
#pragma once

#include <cstdint>
#include <optional>

#include "elementary/series/series_rule.h"

namespace quorvex {

/// For what floats are wrong by, after a million steps.
inline constexpr double float_margin = 1e-8;

/// A number above 0 by its leading digit: from 1 to below 10.
double Mantissa(const limbs::Number& number);

/// No less than the number, or than the number times that power of ten.
double Upper_Bound(const limbs::Number& number, std::int64_t power_of_ten = 0);

/// The bound of what a term by exact steps can differ by from the true one that begins with the
/// same power, in units of the sum's last place.
///
/// An exact step rounds a product by at most half a unit of digit limit + 2, and leaves less than a
/// unit of digit limit + 1 off a quotient: together less than 2 * 10^-limit of the power's size.
/// What is added may be a quotient of the power, of as much. Sizes of powers are known from above,
/// and after n steps n such parts have come together. Where powers are not divided, a step costs
/// half a unit, and the quotient one of digit limit + 1 alone.
class Error_Of_Steps {
 public:
  explicit Error_Of_Steps(const Series_Tail& tail);

  /// Of the next term.
  double next();

 private:
  const Series_Rule& rule_;
  std::uint64_t k_;
  double factor_;
  double size_;  // of a power, where the sum's leading digit counts ones
  double steps_ = 1;
};

/// How many terms follow; nothing where that is in doubt, for too many of them, and for divisors
/// that are not below `divisor_end`. `last_place_power` is the power of ten of the sum's last
/// place.
///
/// Doubt about the end is none where the term after it is too small to change the sum.
std::optional<std::uint64_t> Count_Terms(const Series_Tail& tail, std::uint64_t divisor_end);

/// The same for a rule without a divisor of powers.
std::optional<std::uint64_t> Count_Powers(const Series_Tail& tail);

}  // namespace quorvex
