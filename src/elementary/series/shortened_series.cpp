#include "elementary/series/shortened_series.h"

#include <cmath>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "elementary/series/tail_in_groups.h"
#include "elementary/series/tail_in_turn.h"
#include "elementary/series/tail_of_powers.h"
#include "elementary/series/term_sizes.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

// Below this limit a run hardly pays.
constexpr double lowest_limit = 15;

// From and up to these, sums of powers cost less than other ways, where powers are not divided.
constexpr double lowest_limit_of_powers = 135;
constexpr double highest_limit_of_powers = 2500;

// From here on groups cost less than terms in turn, although they take two divisions a term. What
// they cut off is bounded up to the highest limit.
constexpr double lowest_limit_of_groups = 400;
constexpr double highest_limit = 1'000'000;

// So many places the first power lies below the sum. Its digits behind the last place of the sum
// make doubt as seldom as one time in some thousand, and where doubt is dear, in some ten thousand
// or some million.
constexpr std::int64_t places_below = 3;
constexpr std::int64_t places_below_of_powers = 4;
constexpr std::int64_t places_below_of_groups = 6;

// Of the leading digits of a sum and of what is still to come.
constexpr double margin = 1e-9;

double added_doubt = 0;

enum class Way { in_turn, by_powers, in_groups };

Way Way_Of(const Series_Rule& rule, double limit) {
  const bool has_powers = rule.power_divisor == nullptr && rule.term_divisor != nullptr;
  if (has_powers && limit >= lowest_limit_of_powers && limit <= highest_limit_of_powers) {
    return Way::by_powers;
  }
  return limit < lowest_limit_of_groups ? Way::in_turn : Way::in_groups;
}

std::int64_t Places_Below(const Series_Rule& rule, double limit) {
  if (limit < lowest_limit_of_groups) return places_below;
  return Way_Of(rule, limit) == Way::by_powers ? places_below_of_powers : places_below_of_groups;
}

std::optional<Step_Number> Sum_Of_Tail(const Series_Tail& tail) {
  switch (Way_Of(tail.rule, tail.limit)) {
    case Way::in_turn:
      return Sum_In_Turn(tail);
    case Way::by_powers:
      return Sum_Of_Powers(tail);
    default:
      return Sum_In_Groups(tail);
  }
}

bool Is_Number(const Step_Number& number) {
  return number.is_in_limbs() && !number.is_zero();
}

}  // namespace

double Shortened_Series::Add_Doubt(double doubt) {
  return std::exchange(added_doubt, doubt);
}

double Shortened_Series::Added_Doubt() {
  return added_doubt;
}

Shortened_Series::Shortened_Series(const Series_Rule& rule, const Step_Number& factor, double limit,
                                   std::int64_t last_power, std::uint64_t last_k)
    : rule_(rule), factor_(factor), limit_(limit), last_power_(last_power), last_k_(last_k) {
  is_over_ = !(limit >= lowest_limit && limit <= highest_limit && std::trunc(limit) == limit) ||
             !Is_Number(factor) || factor.is_negative() || factor.leading_power() >= 0 ||
             !Can_Multiply();
}

std::optional<Step_Number> Shortened_Series::sum_from(const Series_State& state) {
  if (is_over_ || !is_ready(state)) return std::nullopt;
  is_over_ = true;
  const Series_Tail tail{rule_,   factor_.in_limbs(), state, limit_, last_power_,
                         last_k_, added_doubt};
  // The end is to be among the places of the sum.
  const std::int64_t end = last_power_ + 1 + tail.shift();
  if (end < 0 || static_cast<double>(end) > Digits_Of_Result(limit_)) return std::nullopt;
  return Sum_Of_Tail(tail);
}

bool Shortened_Series::is_ready(const Series_State& state) const {
  if (is_over_ || !Is_Number(state.power) || !Is_Number(state.sum)) return false;
  if (state.power.is_negative() && !rule_.alternates) return false;
  const std::int64_t below = state.sum.leading_power() - state.power.leading_power();
  if (below < Places_Below(rule_, limit_)) return false;
  const double still_to_come = std::pow(10.0, static_cast<double>(1 - below)) + margin;
  const double mantissa = Mantissa(state.sum.in_limbs());
  const std::uint64_t next_k = state.k + rule_.stride;
  const double divisor =
      rule_.power_divisor == nullptr ? 1 : static_cast<double>(rule_.power_divisor(next_k));
  return mantissa - still_to_come > 1 && mantissa + still_to_come < 10 &&
         Upper_Bound(factor_.in_limbs()) <= divisor / 2;
}

}  // namespace quorvex
