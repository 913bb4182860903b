#include "arith/division/exact_remainder.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <string_view>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/digits/subtract_digits.h"
#include "arith/division/limb_remainder.h"
#include "arith/division/recip_divide.h"
#include "arith/limbs/limbs.h"
#include "expects.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Why the three operations leave the exact remainder.
//
// Let A, a and B, b be the digits, without zeros in front, and decimals of dividend and divisor, L
// the length of both texts, D the divisor as a whole number, both operands scaled by the same power
// of ten, and I the integer digits of the quotient Q (below 1, less by the zeros behind the point).
// I is A - a - (B - b) + 1 at most, and log10 D is B - b + max(a, b) at most: together, L + 1 at
// most. The quotient is asked for to s = L + 6 digits, so that a unit of its last place, 10^(I-s),
// is at most 10^-5 / D.
//
// 1. It is the dividend times s + 3 digits of the reciprocal, which are right, or where the
//    reciprocal ends those of a number just below it. So it lies below Q, by less than 11 units of
//    digit s + 3, before it is rounded to s digits by the first dropped one.
// 2. Q whole: it has I digits, fewer than s. What is dropped begins with a nine, also for a power
//    of ten, whose digits begin one place later then: rounding gives Q.
// 3. Q not whole: it is 1/D or more from any whole number, and rounding moves it by less than
//    10^-5 / D. Its whole part stays, whichever way it is cut.
// 4. Divisors of 1 and quotients of 1, answered without a reciprocal, are exact.
//
// The product has fewer digits than its limit, so that the difference is exact as well.

// Up to here, of divisor or quotient, long division costs less than products.
constexpr std::size_t few_limbs = 48;
constexpr std::size_t guard_digits = 7;

std::size_t Decimals(const Decimal_Parts& parts) {
  return parts.fraction.size() - Count_Trailing_Zeros(parts.fraction);
}

NumberText Checked(NumberText digits) {
  if (!Has_Token_Mark(digits)) return digits;
  throw Run_Time_Failure(Failure_Number::invalid_call, "A product can't be formed.");
}

// The whole part of x / d, or a number at most two from it.
NumberText Near_Quotient(std::string_view x, std::string_view d) {
  // What the divisor has more digits than the quotient changes it by next to nothing.
  const std::size_t length = x.size() - d.size() + 1;
  const std::size_t dropped = d.size() - std::min(d.size(), length + guard_digits);
  x.remove_suffix(dropped);
  d.remove_suffix(dropped);
  const std::size_t precision = std::max(length, d.size()) + guard_digits;
  Decimal quotient = Divide_Digits(x, d, static_cast<std::int32_t>(precision));
  NumberText digits = Checked(std::move(quotient.digits));
  if (quotient.power_of_ten >= 0) {
    return digits.append(static_cast<std::size_t>(quotient.power_of_ten), '0');
  }
  const auto decimals = static_cast<std::size_t>(-quotient.power_of_ten);
  digits.resize(digits.size() - std::min(digits.size(), decimals));
  return digits;
}

type_Subtraction Difference_Of(std::string_view a, std::string_view b) {
  return Subtract_Decimals({a, {}}, {b, {}});
}

NumberText Remainder_By_Products(std::string_view x, std::string_view d) {
  const NumberText product = Checked(Multiply_Digits(Near_Quotient(x, d), d));
  type_Subtraction rest = Difference_Of(x, product);
  while (rest.NegativeSubtraction) rest = Difference_Of(d, rest.Difference);
  while (std::is_gteq(Order_Of_Digits(rest.Difference, d))) {
    rest = Difference_Of(rest.Difference, d);
  }
  return std::move(rest.Difference);
}

bool Is_Below(std::string_view x, std::string_view d) {
  return std::is_lt(Order_Of_Digits(x, d));
}

// x modulo d, of digits without leading zeros; "0" or empty for 0.
NumberText Remainder_Of_Digits(std::string_view x, std::string_view d) {
  if (Is_Below(x, d)) return NumberText(x);
  const std::size_t shorter = std::min(d.size(), x.size() - d.size() + 1);
  if (limbs::Count_For(shorter) <= few_limbs) return limbs::Remainder(x, d);
  return Remainder_By_Products(x, d);
}

}  // namespace

Decimal Remainder_Of(const Operand& dividend, const Operand& divisor, Quotient_Cut cut) {
  Expects(dividend.is_number() && divisor.is_number() && !Is_Zero(divisor.parts()));
  if (Is_Zero(dividend.parts())) return {"0"};
  if (!Can_Multiply()) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "The library of products is missing.");
  }
  const std::size_t decimals = std::max(Decimals(dividend.parts()), Decimals(divisor.parts()));
  const Whole_Digits x(dividend.parts(), decimals);
  const Whole_Digits d(divisor.parts(), decimals);
  NumberText rest = Remainder_Of_Digits(x.digits(), d.digits());
  if (rest.empty() || rest == "0") return {"0"};
  // Cut down, the quotient is one less than towards zero where it is negative.
  const bool crosses = cut == Quotient_Cut::down && dividend.positive() != divisor.positive();
  if (crosses) rest = Difference_Of(d.digits(), rest).Difference;
  const bool positive = crosses ? divisor.positive() : dividend.positive();
  return {std::move(rest), -static_cast<std::int64_t>(decimals), !positive};
}

}  // namespace quorvex
