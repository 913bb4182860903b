#include "arith/powers/newton_end.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "arith/digits/multiply_digits.h"
#include "arith/powers/inverse_root.h"
#include "arith/powers/leading_digits.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;

// Let s be the root of degree d, a value T = s (1 + e), S the limit of the steps, and u the unit of
// digit S + 1, which is the last that a quotient keeps.
//
// 1. The next value has (d - 1) / 2 e^2 (1 - (d + 1) / 3 e) for e, but for terms of (d e)^2 beside
//    that, and for what its step rounds away, at most so many u:
//      by the last quotient 0.97 down and 0.5 up, as three guard digits may round;
//      by that of the radicand and the power the same, and 0.7 d and 5 of 10^-(S + 2) of it by the
//      power; it is a d-th part of the sum;
//      by product and sum 0.5 each, half a unit of digit S + 2, where d is above 10. Before, whole
//      u have room there.
//    All values are to have as many whole digits as s, and the reciprocal of the power a digit
//    other than 0 soon behind its first one, as division asks.
// 2. The end compares c digits of two values in a row: as many as `maxSD` less one, and one less
//    below 1. While e is three units of digit c or more, they differ. Nor has one only grown by a
//    digit there: it would have to be longer than that, which takes zeros behind the separator.
// 3. From then on the values are known to within what is rounded away, and so is what they are
//    rounded to. A value is a whole number of u, as the borders of rounding are: one that is less
//    than a border b is b - u at most. If they differ, the first may still have c digits itself,
//    and the second one more, which ends the iteration too: it is next to a number of c digits
//    then.
constexpr std::int64_t beyond_result = 20;
constexpr std::int64_t least_digits = 20;
constexpr double near_power_of_ten = 1e-6;
constexpr double least_behind_first = 2e-5;
constexpr double greatest_first_distance = 1e-8;  // of d e

constexpr double highest_limit = 1'000'000;
constexpr std::int64_t farthest_power = 1'000'000;

bool Is_Whole(double number) {
  return std::trunc(number) == number;
}

bool Is_Told(const Step_Number& radicand, const Step_Number& degree, const Step_Number& start,
             const Newton_Limits& limits) {
  if (!radicand.is_in_limbs() || !degree.is_in_limbs() || !start.is_in_limbs()) return false;
  if (radicand.is_negative() || start.is_negative() || radicand.is_zero()) return false;
  const Number& n = degree.in_limbs();
  const bool is_short = n.count() == 1 && n.low == 0 && !n.negative && n.data()[0] > 2 &&
                        n.data()[0] <= highest_quick_degree;
  return is_short && limits.maxSD > least_digits && limits.steps > limits.maxSD &&
         limits.steps <= highest_limit && Is_Whole(limits.maxSD) && Is_Whole(limits.steps) &&
         std::abs(radicand.leading_power()) <= farthest_power && Can_Multiply();
}

// The mantissa of the reciprocal of the power that the radicand is divided by.
double Mantissa_Of_Power(double inverse, Limb exponent) {
  Leading_Digits power{1, 0};
  for (; exponent > 0; --exponent) power = Scaled(power.mantissa * inverse, 0);
  return power.mantissa;
}

class Newton_Values {
 public:
  Newton_Values(const Number& radicand, Limb degree, const Newton_Limits& limits)
      : degree_(degree),
        limit_(static_cast<std::int64_t>(limits.maxSD) - 1),
        steps_(static_cast<std::int64_t>(limits.steps)),
        digits_(std::min(limit_ + beyond_result, steps_ + 6)),
        found_(Find_Root(radicand, degree, static_cast<std::size_t>(digits_))),
        root_(Leading_Digits_Of(found_.root)) {}

  // At least 0.1, and with fewer whole digits than are compared.
  bool is_told() const {
    const double power = Mantissa_Of_Power(Leading_Digits_Of(found_.inverse).mantissa, degree_ - 1);
    return root_.power >= -1 && root_.power < limit_ - 2 &&
           root_.mantissa > 1 + near_power_of_ten && root_.mantissa < 10 - near_power_of_ten &&
           power - std::floor(power) > least_behind_first;
  }

  std::optional<Decimal> end(const Number& start) const;

 private:
  // e of a value, and what part of it is in doubt.
  struct Distance {
    Leading_Digits e;
    double error = 1e-14;
  };

  Distance next(const Distance& distance) const {
    const auto d = static_cast<double>(degree_);
    const double e = distance.e.number();
    const double bend = 1 - (d + 1) / 3 * e;
    return {Scaled((d - 1) / 2 * distance.e.mantissa * distance.e.mantissa * bend,
                   2 * distance.e.power),
            2 * distance.error + 1e-14};
  }

  // How far a value may be below and above what it stands for, in units of digit S + 1.
  struct Rounding {
    double down;
    double up;
  };

  Rounding rounding() const {
    constexpr Limb room_for_whole_units = 10;
    const auto d = static_cast<double>(degree_);
    const double by_both = degree_ > room_for_whole_units ? 1 : 0;
    const double by_power = root_.mantissa / 100 * (0.7 + 5 / d);
    return {0.97 + 0.97 / d + by_power + by_both, 0.5 + 0.5 / d + by_power + by_both};
  }

  std::int64_t compared_digits() const { return root_.power < 0 ? limit_ - 1 : limit_; }
  std::int64_t last_of(std::int64_t digits) const { return root_.power + 1 - digits; }

  // s e in units of the last of so many digits.
  double units(const Distance& distance, std::int64_t digits) const {
    return Leading_Digits{distance.e.mantissa * root_.mantissa,
                          distance.e.power + root_.power - last_of(digits)}
        .number();
  }

  Number value(const Distance& distance) const;

  // What a float makes of `value` behind so many digits may be wrong by, in units of the last.
  double doubt(const Distance& distance, std::int64_t digits) const {
    constexpr double of_floats = 1e-15;
    return std::fabs(units(distance, digits)) * distance.error + of_floats +
           Leading_Digits{1, digits + 1 - digits_}.number();
  }

  // Digit S + 1 in units of another one.
  double small_unit(std::int64_t digits) const {
    return Leading_Digits{1, digits - steps_ - 1}.number();
  }

  std::optional<Number> rounded(const Distance& distance, std::int64_t digits) const;
  bool may_have_ended(const Distance& distance) const;

  Limb degree_;
  std::int64_t limit_;
  std::int64_t steps_;
  std::int64_t digits_;  // of the root that are known
  Root_And_Inverse found_;
  Leading_Digits root_;
};

// A float tells e further than digits are looked at, and is taken for a whole number of 17 digits.
Number Newton_Values::value(const Distance& distance) const {
  constexpr std::int64_t digits_of_floats = 16;
  const Leading_Digits offset =
      Scaled(distance.e.mantissa * root_.mantissa, distance.e.power + root_.power);
  const auto whole = static_cast<std::int64_t>(
      std::llround(offset.mantissa * static_cast<double>(limbs::Ten_To(digits_of_floats))));
  Number sum;
  const Number part = Short_Number(whole, offset.power - digits_of_floats);
  limbs::Add(found_.root, part, part.negative, static_cast<std::size_t>(digits_ + 2), sum);
  return sum;
}

// A value rounded; nothing where a border is too near.
std::optional<Number> Newton_Values::rounded(const Distance& distance, std::int64_t digits) const {
  constexpr double half = 0.5;
  const Number exact = value(distance);
  const double above_border = Part_Behind(exact, last_of(digits)) - half;
  const double doubtful = doubt(distance, digits);
  const double u = small_unit(digits);
  const Rounding away = rounding();
  if (above_border >= -away.up * u - doubtful && above_border <= (away.down - 1) * u + doubtful) {
    return std::nullopt;
  }
  Number result;
  limbs::Add(exact, Number(), false, static_cast<std::size_t>(digits), result);
  return result;
}

// Whether the value may have no more than the digits that are compared.
bool Newton_Values::may_have_ended(const Distance& distance) const {
  const std::int64_t digits = compared_digits();
  const double behind = Part_Behind(value(distance), last_of(digits));
  const double doubtful = doubt(distance, digits) + rounding().down * small_unit(digits);
  return std::fmin(behind, 1 - behind) <= doubtful;
}

std::optional<Decimal> Newton_Values::end(const Number& start) const {
  constexpr double clear = 3;
  constexpr int most_rounds = 4;
  Number offset;
  limbs::Add(start, found_.root, true, static_cast<std::size_t>(digits_), offset);
  const Leading_Digits distance = Leading_Digits_Of(offset);
  if (distance.mantissa == 0) return std::nullopt;
  Distance now{Scaled(distance.mantissa / root_.mantissa, distance.power - root_.power)};
  const std::int64_t compared = compared_digits();
  const bool is_near =
      std::fabs(now.e.number()) * static_cast<double>(degree_) <= greatest_first_distance;
  const auto is_clear = [&] { return std::fabs(units(now, compared)) >= clear; };
  if (!is_near || !is_clear()) return std::nullopt;
  while (is_clear()) now = next(now);
  for (int round = 0; round < most_rounds; ++round) {
    const Distance behind = next(now);
    const std::optional<Number> before = rounded(now, compared);
    const std::optional<Number> after = rounded(behind, compared);
    if (!before || !after) return std::nullopt;
    if (std::is_eq(limbs::Compare_Magnitudes(*before, *after))) {
      // What the iteration gives is the first of the two.
      const std::optional<Number> root = rounded(now, limit_ + 2);
      if (!root) return std::nullopt;
      return limbs::Decimal_Of(*root);
    }
    if (may_have_ended(now)) return std::nullopt;
    now = behind;
  }
  return std::nullopt;
}

}  // namespace

std::optional<Decimal> Newton_End(const Step_Number& radicand, const Step_Number& degree,
                                  const Step_Number& start, const Newton_Limits& limits) {
  if (!Is_Told(radicand, degree, start, limits)) return std::nullopt;
  const Newton_Values values(radicand.in_limbs(), degree.in_limbs().data()[0], limits);
  if (!values.is_told()) return std::nullopt;
  return values.end(start.in_limbs());
}

}  // namespace quorvex
