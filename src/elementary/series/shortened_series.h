// The long tail of a series, on numbers cut to the digits that its sum keeps.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>

#include "arith/operation/step_number.h"

namespace quorvex {

/// How the terms of a series follow from each other.
struct Series_Rule {
  /// Of the counter, from each term to the next.
  std::uint64_t stride;
  /// The divisor by the counter.
  std::uint64_t (*divisor)(std::uint64_t k);
  /// True where only what is added is divided, and the next power follows from the undivided one.
  bool keeps_power;
  /// True where the power, and not what is added, tells the end.
  bool ends_by_power;
  bool alternates;
};

/// The place of a series where it is to be shortened.
struct Series_State {
  const Step_Number& power;
  const Step_Number& sum;
  std::uint64_t k;
};

/// Sums up the terms that follow, each the power before it times a factor, divided as the rule
/// says. The outcome is the sum that exact steps arrive at, to the last digit, or none: where a
/// digit could turn out otherwise, exact steps have to go on.
///
/// In a chain of exact steps, terms keep as many significant digits as the sum, and so many more
/// places than the sum has room for. Here all are held in units of the sum's last place, with 64
/// bits for the fraction. The bound of what a term can differ by has two parts.
///
/// - An exact step rounds a product by at most half a unit of digit limit + 2, and leaves less than
///   a unit of digit limit + 1 off a quotient: together less than 2 * 10^-limit of the power's
///   size. Sizes of powers are known from above, and after n steps n such parts have come together.
/// - A step here cuts off less than a unit of 2^-64 for each word and five more; the conversions at
///   the start less than 20. Since each power is at most half the one before, all that powers bring
///   along is no more than twice that of one step.
///
/// A term that is farther than this from the middle between two units rounds as the exact one does,
/// and one that is as far from the power of ten that ends the series ends it or not as that one.
class Shortened_Series {
 public:
  static constexpr std::uint64_t endless = std::numeric_limits<std::int64_t>::max();

  /// The last of the counter, and the power of ten with which the series ends: a term whose
  /// leading digit has it, or a lower one, is the last.
  Shortened_Series(const Series_Rule& rule, const Step_Number& factor, double limit,
                   std::int64_t last_power, std::uint64_t last_k = endless);

  /// The whole sum. Nothing before the terms are small enough, which is soon, nor ever after one
  /// attempt.
  std::optional<Step_Number> sum_from(const Series_State& state);

  /// What tests add to the bound of all errors, in units of a sum's last place; gives what was
  /// added before.
  static double Add_Doubt(double doubt);

 private:
  bool is_ready(const Series_State& state) const;
  std::optional<Step_Number> run(const Series_State& state) const;

  const Series_Rule& rule_;
  const Step_Number& factor_;
  double limit_;
  std::int64_t last_power_;
  std::uint64_t last_k_;
  bool is_over_;
};

}  // namespace quorvex
