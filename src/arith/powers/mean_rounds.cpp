#include "arith/powers/mean_rounds.h"

#include <cmath>
#include <cstdint>

namespace quorvex {
namespace {

using limbs::Number;

// e^2 / (2 (1 + e)).
Leading_Digits Next_Distance(const Leading_Digits& e) {
  constexpr std::int64_t beyond_floats = 20;
  if (e.power > beyond_floats) return Scaled(e.mantissa / 2, e.power);
  const double near = e.power < -beyond_floats ? 1 : 1 + e.number();
  return Scaled(e.mantissa * e.mantissa / (2 * near), 2 * e.power);
}

}  // namespace

std::optional<Far_Value> Way_To_Root(const Number& value, const Number& root, std::size_t digits) {
  constexpr std::int64_t far = 8;
  const auto is_near = [&](const Leading_Digits& e) {
    return e.mantissa == 0 || 2 * e.power + 2 <= far - static_cast<std::int64_t>(digits);
  };
  Number difference;
  limbs::Add(value, root, true, digits + division_guard_digits + beyond_quotient, difference);
  const Leading_Digits distance = Leading_Digits_Of(difference);
  const Leading_Digits of = Leading_Digits_Of(distance.mantissa < 0 ? value : root);
  constexpr double rounding = 1e-15;
  Far_Value reached{Scaled(std::fabs(distance.mantissa) / of.mantissa, distance.power - of.power),
                    rounding, 0};
  const bool may_agree =
      reached.e.mantissa == 0 || reached.e.power < far - static_cast<std::int64_t>(digits);
  if (may_agree) return std::nullopt;
  for (; !is_near(reached.e); ++reached.rounds) {
    const double growth = reached.e.power > 0 ? 1 + std::pow(10.0, -reached.e.power) : 2;
    reached.e = Next_Distance(reached.e);
    reached.error = growth * reached.error + rounding;
  }
  return reached;
}

// What is added to the twofold root s is s e^2 / (1 + e). Where e went through so many rounds that
// it is known too roughly, one unit more or none may both be wrong.
std::optional<Rounded_Sum> Sum_With_Quotient(const Far_Value& value, double guards,
                                             double root_mantissa, std::size_t digits) {
  constexpr double most_slack = 30;
  const double near = 1 + value.e.number();
  const Leading_Digits square =
      Scaled(value.e.mantissa * value.e.mantissa * root_mantissa / near, 2 * value.e.power);
  const auto p = static_cast<std::int64_t>(digits + division_guard_digits);
  const double added = Leading_Digits{square.mantissa, square.power + p - 1}.number();
  const double slack = 1e-3 + 2 * added * value.error;
  if (slack > most_slack) return std::nullopt;
  const double units = std::floor((guards + added) / guard_units);
  const double left = guards + added - units * guard_units;
  return Rounded_Sum{units, Round_Between(left - Most_Lost(root_mantissa) - slack, left + slack)};
}

}  // namespace quorvex
