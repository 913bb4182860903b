#include "arith/powers/inverse_root.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "arith/limbs/limb_division.h"
#include "arith/limbs/limbs.h"
#include "arith/powers/leading_digits.h"
#include "arith/powers/limb_root.h"
#include "expects.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;

// So many digits of the first approximation are right. Floats have one more.
constexpr std::size_t digits_of_floats = 14;

// The reciprocal of the root as floats give it. The power of ten is split into a whole multiple of
// the degree and the rest.
Number First_Approximation(const Number& radicand, Limb degree) {
  const Leading_Digits leading = Leading_Digits_Of(radicand);
  const auto n = static_cast<std::int64_t>(degree);
  const std::int64_t whole = (leading.power - (leading.power < 0 ? n - 1 : 0)) / n;
  const auto rest = static_cast<double>(leading.power - whole * n);
  const auto exponent = -1.0 / static_cast<double>(degree);
  const double inverse = std::pow(leading.mantissa, exponent) * std::pow(10.0, rest * exponent);
  constexpr std::int64_t shown = 17;
  return Short_Number(std::llround(inverse * static_cast<double>(limbs::Ten_To(shown))),
                      -whole - shown);
}

// The leading limbs, which have at least one digit more than asked for.
Number Shortened(const Number& number, std::size_t digits) {
  const std::size_t count = limbs::Count_For(digits) + 1;
  if (number.count() <= count) return number;
  const std::size_t left = number.count() - count;
  limbs::Scratch scratch(count);
  limbs::Copy(number.data() + left, count, scratch.data());
  Number shortened;
  limbs::Trim(
      {scratch.data(), count, number.low + static_cast<std::int64_t>(left), number.negative},
      shortened);
  return shortened;
}

Number Product(const Number& a, const Number& b, std::size_t digits) {
  Number product;
  limbs::Multiply(a, b, digits, product);
  return product;
}

// base^exponent, every product rounded to so many digits.
Number Power_Of(const Number& base, Limb exponent, std::size_t digits) {
  if (exponent == 1) return base;
  const Number half = Power_Of(base, exponent / 2, digits);
  Number power = Product(half, half, digits);
  if (exponent % 2 == 1) limbs::Multiply(power, base, digits, power);
  return power;
}

// The quotient cut behind a limb more than the dividend has.
Number Short_Quotient(const Number& a, Limb divisor) {
  const std::size_t count = a.count() + 1;
  limbs::Scratch scratch(count);
  const limbs::Divisor by(divisor);
  Limb rest = 0;
  for (std::size_t place = count; place-- > 0;) {
    scratch.data()[place] = by.divide(rest, place == 0 ? 0 : a.data()[place - 1]);
  }
  Number quotient;
  limbs::Trim({scratch.data(), count, a.low - 1, a.negative}, quotient);
  return quotient;
}

// x + x (1 - a x^n) / n. Let x be (1 + e) times what it stands for: what it becomes is less than
// (n + 1) / 2 e^2 (1 + n e) too small, in proportion, apart from roundings. With |e| up to 10^-have
// that is half of 10^-next at most. Roundings to two digits more than `next`, each by half a unit
// at most, are 5 * 10^-2 of 10^-next each: n - 1 of a power's products, two more of the product
// with `a` and of that cut, all divided by n, and that of the sum. The correction has the four
// digits more than `next` has beyond `have`, and is at most n e of x.
Number Improved(const Number& a, Limb n, const Number& x, std::size_t have, std::size_t next) {
  const std::size_t digits = next + 2;
  const Number power = Power_Of(x, n, digits);
  const Number near_one = Product(Shortened(a, digits), power, digits);
  Number lack;
  limbs::Add(Short_Number(1, 0), near_one, true, digits, lack);
  const std::size_t of_correction = next - have + limbs::Count_Digits(n) + 4;
  const Number correction = Short_Quotient(
      Product(Shortened(lack, of_correction), Shortened(x, of_correction), of_correction), n);
  Number improved;
  limbs::Add(x, correction, correction.negative, digits, improved);
  return improved;
}

// What one round of Newton's method loses of the doubled digits.
std::size_t Lost_Digits(Limb degree) {
  return limbs::Count_Digits(degree);
}

// Rising precision: the last approximation has half of the digits.
Number Inverse_Root(const Number& radicand, Limb degree, std::size_t digits) {
  if (digits <= digits_of_floats) return First_Approximation(radicand, degree);
  const std::size_t have = (digits + Lost_Digits(degree) + 1) / 2;
  const Number x = Inverse_Root(radicand, degree, have);
  Yield();
  return Improved(radicand, degree, x, have, digits);
}

}  // namespace

// The root is a x^(n - 1): n - 1 times what x is wrong by, and n roundings.
Root_And_Inverse Find_Root(const Number& radicand, Limb degree, std::size_t digits) {
  Expects(!radicand.is_zero() && !radicand.negative);
  Expects(degree >= 2 && degree <= highest_quick_degree);
  const std::size_t working = digits + limbs::Count_Digits(degree) + 1;
  Root_And_Inverse found;
  found.inverse = Inverse_Root(radicand, degree, working);
  found.root = Product(Shortened(radicand, working),
                       Power_Of(found.inverse, degree - 1, working + 2), working + 2);
  return found;
}

// Let x be the reciprocal of the root s, and t = a x, both wrong by less than 2 * 10^-have. Then s
// is t + x (a - t^2) / 2 but for less than 4 * 10^-2have of itself: A. H. Karp, P. Markstein,
// High-Precision Division and Square Root, ACM Trans. Math. Software 23 (1997).
Number Find_Square_Root(const Number& radicand, std::size_t digits) {
  Expects(!radicand.is_zero() && !radicand.negative);
  const std::size_t count = limbs::Count_For(digits + 2);
  if (count <= most_limbs_in_turn) return Root_In_Turn(radicand, count);
  const std::size_t have = digits / 2 + 3;
  const std::size_t of_correction = digits - have + 4;
  const Number x = Inverse_Root(radicand, 2, have);
  const Number near = Product(Shortened(radicand, have), x, have + 1);
  Number lack;
  limbs::Add(Shortened(radicand, digits + 3), Product(near, near, 2 * have + 2), true, digits + 3,
             lack);
  const Number correction = Short_Quotient(
      Product(Shortened(lack, of_correction), Shortened(x, of_correction), of_correction), 2);
  Number root;
  limbs::Add(near, correction, correction.negative, digits + 2, root);
  return root;
}

Number Find_Inverse_Square_Root(const Number& radicand, std::size_t digits) {
  Expects(!radicand.is_zero() && !radicand.negative);
  return Inverse_Root(radicand, 2, digits + 1);
}

}  // namespace quorvex
