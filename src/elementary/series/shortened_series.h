// The long tail of a series, on numbers cut to the digits that its sum keeps.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// Sums up the terms that follow, each the power before it times a factor, divided as the rule
/// says. The outcome is the sum that exact steps arrive at, to the last digit, or none: where a
/// digit could turn out otherwise, exact steps have to go on.
///
/// In a chain of exact steps, terms keep as many significant digits as the sum, and so many more
/// places than the sum has room for. Here no more are formed than the sum has room for, and a few
/// for the fraction behind them: of few digits in turn (`tail_in_turn.h`), of more in groups of
/// powers (`tail_of_powers.h`), of many in groups of any kind (`tail_in_groups.h`), each with a
/// bound of what it cuts off; what exact steps can differ by is bounded in `term_sizes.h`. A term
/// that is farther than both together from the middle between two units rounds as the exact one
/// does, and one that is as far from the power of ten that ends the series ends it or not as that
/// one.
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
  static double Added_Doubt();

  /// True if the powers are at least halved by each step, and all that are still to come cannot
  /// move the sum's leading digit to another place.
  bool is_ready(const Series_State& state) const;

 private:
  const Series_Rule& rule_;
  const Step_Number& factor_;
  double limit_;
  std::int64_t last_power_;
  std::uint64_t last_k_;
  bool is_over_;
};

}  // namespace quorvex
