// Quotients of numbers in limbs by numbers of one limb.
#include <algorithm>
#include <cmath>

#include "arith/limb_division.h"
#include "arith/limb_number.h"
#include "arith/quick_reciprocal.h"

namespace quorvex::limbs {
namespace {

constexpr std::size_t guard_digits = 3;  // of the division behind the digits it rounds to

// A whole number without zeros behind, and how many it had.
struct Significant {
  Limb digits;
  std::size_t zeros;
};

Significant Without_Zeros(Limb limb) {
  Significant number{limb, 0};
  for (Limb tenth = limb / 10; tenth * 10 == number.digits; tenth /= 10) {
    number.digits = tenth;
    ++number.zeros;
  }
  return number;
}

// The zeros that a number of one limb has before its decimal point.
std::int64_t Whole_Zeros(const Number& number, std::size_t zeros_in_limb) {
  if (number.low < 0) return 0;
  return number.low * static_cast<std::int64_t>(digits) + static_cast<std::int64_t>(zeros_in_limb);
}

// True where both are written by the same digits, zeros before the point among them.
bool Has_Digits_Of(const Number& a, const Number& b, const Significant& divisor) {
  if (a.count() > 1) return false;
  const Significant dividend = Without_Zeros(*a.data());
  return dividend.digits == divisor.digits &&
         Whole_Zeros(a, dividend.zeros) == Whole_Zeros(b, divisor.zeros);
}

// 10^exponent mod k, or k where that is 0.
Limb Rest_Of_Power(const Divisor& k, std::size_t exponent) {
  if (k.number() == 1) return 1;
  Limb square = 1;
  k.divide(square, 0);
  Limb power = k.rest_of(Ten_To(exponent % digits));
  for (std::size_t left = exponent / digits; left > 0; left /= 2) {
    if (left % 2 == 1) power = k.rest_of(Wide{power} * square);
    square = k.rest_of(Wide{square} * square);
  }
  return power == 0 ? k.number() : power;
}

// The limbs of a quotient from the highest, which is not 0, with one place before it.
struct Limbs_Down {
  Limb* highest;
  std::int64_t top;  // the power of the base of the highest limb
};

// The dividend has zeros behind its limbs.
Limbs_Down Divide(const Number& a, const Number& b, std::size_t count, Limb* out) {
  const Divisor divisor(*b.data());
  const Limb* next = a.data() + a.count();
  std::int64_t top = a.top() - 1 - b.low;
  Limb rest = 0;
  if (*(next - 1) < divisor.number()) {
    rest = *--next;
    --top;
  }
  *out = 0;
  Limb* const highest = out + 1;
  for (std::size_t place = 0; place < count; ++place) {
    highest[place] = divisor.divide(rest, next == a.data() ? 0 : *--next);
  }
  return {highest, top};
}

// The digits behind those that are kept: three of them, and what part of a unit follows.
struct Guard {
  Limb digits;
  double behind;
};

// `rest` is what the limb before `next` holds behind its kept digits, and has `length` digits.
Guard Guard_Of(Limb rest, std::size_t length, const Limb* next) {
  const auto as_part = [](Limb limb) {
    return static_cast<double>(limb) / static_cast<double>(base);
  };
  if (length >= guard_digits) {
    const Limb unit = Ten_To(length - guard_digits);
    const Limb behind = rest % unit;
    return {rest / unit,
            (static_cast<double>(behind) + as_part(*next)) / static_cast<double>(unit)};
  }
  const Limb unit = Ten_To(digits - (guard_digits - length));
  const Limb behind = next[0] % unit;
  return {rest * Ten_To(guard_digits - length) + next[0] / unit,
          (static_cast<double>(behind) + as_part(next[1])) / static_cast<double>(unit)};
}

// How division rounds by its three guard digits: half up by the first of them; but zeros at the end
// bring the rounding as many digits down, and what is then raised is cut off, unless it carries.
bool Rounds_Up(unsigned guard) {
  if (guard % 10 != 0) return guard >= 500;
  return guard >= 950;
}

}  // namespace

// The digits are those of a (1 - g 10^-s) / b, where g is what the reciprocal's digits times the
// divisor's N significant ones leave of 10^s, s = p + N - 1. That takes less than ten units of
// digit p off a / b, which is divided limb by limb, and so needs to be known to some digits only.
std::optional<Number> Quotient(const Number& a, const Number& b, std::size_t digits_kept) {
  if (b.count() != 1 || a.is_zero()) return std::nullopt;
  const std::size_t p = digits_kept + guard_digits;
  const Significant k = Without_Zeros(*b.data());
  const std::size_t length = Count_Digits(k.digits);
  const bool is_told = p >= static_cast<std::size_t>(least_quick_precision) &&
                       Ends_Beyond_Doubt(length, p) && Digits_Behind_First(p) >= length;
  const bool is_special = (k.digits == 1 && Whole_Zeros(b, k.zeros) == 0) || Has_Digits_Of(a, b, k);
  if (!is_told || is_special) return std::nullopt;

  const std::size_t count = Count_For(p) + 3;
  Scratch scratch(2 * count + 2);
  const Limbs_Down quotient = Divide(a, b, count, scratch.data());
  Limb* const highest = quotient.highest;
  const std::size_t in_highest = Count_Digits(*highest);
  std::size_t last = digits_kept > in_highest ? Count_For(digits_kept - in_highest) : 0;
  const std::size_t cut = in_highest + last * digits - digits_kept;
  const Limb unit = Ten_To(cut);
  const Limb rest = highest[last] % unit;
  const Guard guard = Guard_Of(rest, cut, highest + last + 1);

  const double leading = (static_cast<double>(highest[0]) +
                          static_cast<double>(highest[1]) / static_cast<double>(base)) /
                         static_cast<double>(Ten_To(in_highest));
  const auto g = static_cast<double>(Rest_Of_Power(Divisor(k.digits), p + length - 1));
  const double lowered = static_cast<double>(guard.digits) + guard.behind -
                         leading * g / static_cast<double>(Ten_To(length - 1));
  constexpr double safe = 1e-6;  // more than what the floats may be wrong by
  if (lowered < safe || std::fabs(lowered - std::floor(lowered + 0.5)) < safe) return std::nullopt;

  highest[last] -= rest;
  if (Rounds_Up(static_cast<unsigned>(lowered))) {
    highest[last] += unit;
    Limb* place = highest + last;
    for (; *place >= base; ++*place) *place-- -= base;
  }
  Limb* const limbs = scratch.data() + count + 1;
  std::reverse_copy(highest - 1, highest + last + 1, limbs);
  return Trimmed(
      {limbs, last + 2, quotient.top - static_cast<std::int64_t>(last), a.negative != b.negative});
}

}  // namespace quorvex::limbs
