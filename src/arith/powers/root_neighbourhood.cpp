#include "arith/powers/root_neighbourhood.h"

#include <algorithm>
#include <cmath>

#include "arith/digits/multiply_digits.h"
#include "arith/division/told_rounding.h"
#include "arith/powers/inverse_root.h"
#include "arith/powers/leading_digits.h"
#include "arith/powers/mean_end.h"
#include "arith/powers/mean_rounds.h"
#include "expects.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;

// How a quotient a / T comes about, T being near the root s.
//
// Division takes p = D + 3 digits of the reciprocal of T, cut, and as many of their product with a,
// cut, and rounds these to D. Let u be the unit of digit D of the quotient and v that of digit p, a
// thousandth of it, and f the part that the reciprocal's cut takes off its own digit p. Then the
// product is f m^2 / 10 of v less than a / T, m being the mantissa of s, 1 to 10: a reciprocal of a
// number with the mantissa m has 10 / m, and the quotient m again.
//
// For T = s + e and w = e / s the quotient is s - e g, and the reciprocal (1 - w g) / s, with
// g = 1 - w + w^2 and so on. Where w is below 10^(-(p + 9) / 4), the three terms leave less than
// 10^-8 units of digit p, and where it is below 10^(-(p + 9) / 2), the first one does.
//
// That the digits of the reciprocal are the cut ones is shown where division finds them: T has no
// more than p - 2 digits, and not all of the p / 4 - 1 behind the first one of its reciprocal are
// zeros. It has to be 10^-9 away from a number of p digits, too, since of one that ends there
// division knows a number just below. All values in question are to have as many whole digits as
// the root.
constexpr double least_behind_first = 2e-5;  // p / 4 - 1 is 5 and more
constexpr double near_power_of_ten = 1e-6;

Number Sum(const Number& a, const Number& b, bool b_is_negative, std::size_t digits) {
  Number sum;
  limbs::Add(a, b, b_is_negative, digits, sum);
  return sum;
}

Number Product(const Number& a, const Number& b, std::size_t digits) {
  Number product;
  limbs::Multiply(a, b, digits, product);
  return product;
}

// The half of a positive number, cut behind a power of ten.
Number Half_Down(const Number& number, std::int64_t last) {
  Expects(!number.negative);
  const std::size_t count = number.count() + 1;
  const std::int64_t low = number.low - 1;
  limbs::Scratch scratch(count);
  Limb* const half = scratch.data();
  Limb rest = 0;
  for (std::size_t place = count; place-- > 0;) {
    const Limb limb = (place == 0 ? 0 : number.data()[place - 1]) + rest * limbs::base;
    half[place] = limb / 2;
    rest = limb % 2;
  }
  const std::int64_t dropped = last - low * static_cast<std::int64_t>(limbs::digits);
  if (dropped > 0) {
    const std::size_t whole = static_cast<std::size_t>(dropped) / limbs::digits;
    std::fill_n(half, whole, 0);
    half[whole] -= half[whole] % limbs::Ten_To(static_cast<std::size_t>(dropped) % limbs::digits);
  }
  Number result;
  limbs::Trim({half, count, low, false}, result);
  return result;
}

}  // namespace

bool Root_Neighbourhood::Is_For(double limit) {
  constexpr double least_limit = 24;  // for a reciprocal of 28 digits
  constexpr double highest_limit = 10'000'000;
  return limit >= least_limit && limit <= highest_limit && std::trunc(limit) == limit;
}

std::optional<Root_Neighbourhood> Root_Neighbourhood::Of(const Step_Number& radicand,
                                                         double limit) {
  constexpr std::int64_t farthest_power = 10'000'000;
  const bool is_for_this = radicand.is_in_limbs() && !radicand.is_zero() &&
                           !radicand.is_negative() && Is_For(limit) && Can_Multiply();
  if (!is_for_this || std::abs(radicand.leading_power()) > farthest_power) return std::nullopt;
  Root_Neighbourhood near(radicand.in_limbs(), static_cast<std::size_t>(limit));
  if (!near.is_told()) return std::nullopt;
  return near;
}

Root_Neighbourhood::Root_Neighbourhood(const Number& radicand, std::size_t limit)
    : digits_(Digits_Of_Quotient(limit)),
      radicand_(radicand),
      root_(Find_Square_Root(radicand, digits_ + beyond_quotient)) {
  const Leading_Digits root = Leading_Digits_Of(root_);
  last_ = root.power + 1 - static_cast<std::int64_t>(digits_);
  most_lost_ = Most_Lost(root.mantissa);
}

bool Root_Neighbourhood::is_told() const {
  const double root = Leading_Digits_Of(root_).mantissa;
  const double inverse = 10 / root;
  return root > 1 + near_power_of_ten && root < 10 - near_power_of_ten &&
         inverse - std::floor(inverse) > least_behind_first;
}

const Number& Root_Neighbourhood::inverse() const {
  if (!inverse_) inverse_ = Find_Inverse_Square_Root(radicand_, digits_ + beyond_quotient);
  return *inverse_;
}

// How far a value is from the root, as the quotient and the reciprocal need it.
struct Root_Neighbourhood::Offset {
  Number e;
  Number w;
  std::optional<Number> g;  // where it is not 1
  std::size_t digits;       // of e, w and g that count
};

std::optional<Root_Neighbourhood::Offset> Root_Neighbourhood::offset_of(const Number& value) const {
  const std::size_t p = digits_ + division_guard_digits;
  Offset offset;
  offset.e = Sum(value, root_, true, p + beyond_quotient);
  if (offset.e.is_zero()) return offset;
  const std::int64_t distance = limbs::Leading_Power(root_) - limbs::Leading_Power(offset.e) - 1;
  const auto reach = static_cast<std::int64_t>(p + 9);
  if (4 * distance < reach) return std::nullopt;
  const auto all = static_cast<std::int64_t>(p + beyond_quotient);
  offset.digits = static_cast<std::size_t>(std::max<std::int64_t>(all - distance, 1));
  if (2 * distance >= reach) return offset;
  offset.w = Product(offset.e, inverse(), offset.digits);
  const Number one = Short_Number(1, 0);
  const Number rest =
      Product(offset.w, Sum(one, offset.w, !offset.w.negative, offset.digits), offset.digits);
  offset.g = Sum(one, rest, !rest.negative, p + beyond_quotient);
  return offset;
}

// f, or below 0 where it can't be told.
double Root_Neighbourhood::lost_by_inverse(const Offset& offset) const {
  constexpr double least = 1e-6;
  const std::size_t p = digits_ + division_guard_digits;
  const std::int64_t last = limbs::Leading_Power(inverse()) + 1 - static_cast<std::int64_t>(p);
  const Number w = offset.g ? offset.w : Product(offset.e, inverse(), offset.digits);
  Number correction = Product(w, inverse(), offset.digits);
  if (offset.g) limbs::Multiply(correction, *offset.g, offset.digits, correction);
  const double part =
      Part_Behind(Sum(inverse(), correction, !correction.negative, p + beyond_quotient), last);
  return part > least && part < 1 - least ? part : -1;
}

std::optional<Step_Number> Root_Neighbourhood::quotient(const Step_Number& value) const {
  if (!value.is_in_limbs()) return std::nullopt;
  const std::optional<Offset> offset = offset_of(value.in_limbs());
  if (!offset) return std::nullopt;
  const Number less = offset->g ? Product(offset->e, *offset->g, offset->digits) : offset->e;
  Number quotient =
      Sum(root_, less, !less.negative, digits_ + division_guard_digits + beyond_quotient);
  const double guards = Part_Behind(quotient, last_) * guard_units;
  Told_Rounding rounding = Round_Between(guards - most_lost_ - safe_guards, guards + safe_guards);
  if (rounding == Told_Rounding::in_doubt) {
    const double part = lost_by_inverse(*offset);
    if (part < 0) return std::nullopt;
    const double lowered = guards - part * most_lost_;
    rounding = Round_Between(lowered - safe_guards, lowered + safe_guards);
    if (rounding == Told_Rounding::in_doubt) return std::nullopt;
  }
  const double to_next = (rounding == Told_Rounding::is_raised ? guard_units : 0) - guards;
  limbs::Add(quotient,
             Short_Number(std::llround(std::fabs(to_next)),
                          last_ - static_cast<std::int64_t>(division_guard_digits)),
             to_next < 0, digits_, quotient);
  return Step_Number(std::move(quotient));
}

// Let T be s (1 + e). The quotient by T and T together, M, are the twofold root and s e^2 / (1 +
// e), rounded as above, since T has no digits behind u. So the value behind T, the half of M, is
// known without T as soon as that last part is known to parts of v. Here it is from the first T on
// where e^2 is below 10^(8 - D):
//
// 1. A value behind another one has e^2 / (2 (1 + e)) for e. A value below the root has a quotient
//    above it, and the same mean as that. Floats tell e to 10^-15 of itself where it begins, and
//    grow wrong with each round by (2 + e) / (1 + e) times and a rounding. What the iteration
//    itself rounds away is less than 2 u of T. That makes less than 10^-3 v of s e^2. A value to
//    begin with is exact.
// 2. No round up to that T ends the iteration: e is above 10^(7 - D) / 2.1 in each, so that
//    quotient and mean were as far apart, and to agree they have to be within 10^(5 - D). Each was
//    closer together than the one before.
std::optional<Later_Values> Root_Neighbourhood::later_values(const Step_Number& value) const {
  if (!value.is_in_limbs() || value.is_zero() || value.is_negative()) return std::nullopt;
  const std::optional<Far_Value> reached = Way_To_Root(value.in_limbs(), root_, digits_);
  if (!reached) return std::nullopt;
  const Number twice = Sum(root_, root_, false, digits_ + beyond_quotient);
  const double guards = Part_Behind(twice, last_) * guard_units;
  const std::optional<Rounded_Sum> sum =
      Sum_With_Quotient(*reached, guards, Leading_Digits_Of(root_).mantissa, digits_);
  if (!sum) return std::nullopt;
  const auto [units, rounding] = *sum;
  Later_Values later;
  later.rounds = reached->rounds + 1;
  if (rounding != Told_Rounding::is_raised)
    later.values.push_back(half_of(twice, units * guard_units - guards));
  if (rounding != Told_Rounding::stays) {
    Step_Number raised = half_of(twice, (units + 1) * guard_units - guards);
    if (later.values.empty() || !Is_Equal(later.values.front(), raised)) {
      later.values.push_back(std::move(raised));
    }
  }
  return later;
}

std::optional<Decimal> Root_Neighbourhood::end(const Step_Number& start, double maxSD) const {
  if (!start.is_in_limbs() || start.is_zero() || start.is_negative()) return std::nullopt;
  return Mean_End(root_, digits_, start.in_limbs(), maxSD);
}

// The half of M, which is so many thousandths of a unit above what is given.
Step_Number Root_Neighbourhood::half_of(const Number& twice, double to_sum) const {
  const auto kept = static_cast<std::size_t>(limbs::Leading_Power(twice) - last_ + 1);
  const Number unit = Short_Number(std::llround(std::fabs(to_sum)),
                                   last_ - static_cast<std::int64_t>(division_guard_digits));
  return Step_Number(Half_Down(Sum(twice, unit, to_sum < 0, kept), last_));
}

// Neither has digits behind u. Division by 2 finds a number just below the half of their sum, so
// that the half of a unit is dropped.
Step_Number Root_Neighbourhood::mean(const Step_Number& value, const Step_Number& quotient) const {
  Expects(value.is_in_limbs() && quotient.is_in_limbs());
  return Step_Number(
      Half_Down(Sum(value.in_limbs(), quotient.in_limbs(), false, digits_ + 1), last_));
}

}  // namespace quorvex
