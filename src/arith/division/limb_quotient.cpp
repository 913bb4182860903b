#include "arith/division/limb_quotient.h"

#include <algorithm>
#include <array>

#include "arith/division/quick_reciprocal.h"
#include "arith/division/told_rounding.h"
#include "arith/limbs/limb_division.h"
#include "arith/limbs/limb_number.h"
#include "expects.h"

namespace quorvex::limbs {
namespace {

constexpr double most_missing = 10;  // units of the last of them that a quotient may lose

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

// Division that corrects no guess, so that a limb waits for the one above no longer than two
// products take. The limb and the rest, which counts the base, are divided apart, and what their
// quotients are too small by goes on in the rest. With the reciprocals' errors that is below 3.9
// times the divisor, and so limbs of the quotient are below 5 bases. The rest is held shifted to
// the top.
class Loose_Division {
 public:
  Loose_Division(const Divisor& divisor, Limb rest)
      : divisor_(divisor.number()),
        reciprocal_((Limb{1} << 63U) | divisor.reciprocal() >> 1U),
        base_over_divisor_(static_cast<Limb>(Wide{base} * reciprocal_ >> 60U)),
        shift_(divisor.shift()),
        rest_(rest << (shift_ - 3)) {}

  Limb next(Limb limb) {
    const Limb of_limb = static_cast<Limb>(Wide{limb} * reciprocal_ >> 64U) >> (63 - shift_);
    const auto of_rest = static_cast<Limb>(Wide{rest_} * base_over_divisor_ >> 64U);
    const Limb left_of_limb = (limb - of_limb * divisor_) << (shift_ - 3);
    rest_ = rest_ * base + left_of_limb - of_rest * (divisor_ << (shift_ - 3));
    return of_limb + of_rest;
  }

 private:
  Limb divisor_;
  Limb reciprocal_;         // 2^(127 - shift_) over the divisor
  Limb base_over_divisor_;  // the base times 2^(67 - shift_) over the divisor
  unsigned shift_;          // 4 or more
  Limb rest_;
};

// The limbs of a quotient from the highest, with one place before it.
struct Limbs_Down {
  Limb* highest;
  std::int64_t top;  // the power of the base of the highest limb
};

// The dividend has zeros behind its limbs. The quotient is up to four units of the last limb too
// low; its highest limb is 0 only where that is 1 and nothing follows.
Limbs_Down Divide_Down(const Number& a, const Divisor& divisor, std::size_t count, Limb* out) {
  const Limb* next = a.data() + a.count();
  std::int64_t top = a.top() - 1;
  Limb rest = 0;
  if (*(next - 1) < divisor.number()) {
    rest = *--next;
    --top;
  }
  Loose_Division division(divisor, rest);
  *out = 0;
  Limb* const highest = out + 1;
  for (std::size_t place = 0; place < count; ++place) {
    highest[place] = division.next(next == a.data() ? 0 : *--next);
  }
  Limb carry = 0;
  for (std::size_t place = count; place-- > 0;) {
    const Limb bases = highest[place] / base;
    const Limb limb = highest[place] - bases * base + carry;
    const auto runs_over = static_cast<Limb>(limb >= base);
    highest[place] = limb - runs_over * base;
    carry = bases + runs_over;
  }
  return {highest, top};
}

double Part_Of_Base(Limb limb) {
  return static_cast<double>(limb) * 1e-18;
}

// 10 to the -exponent, of at most 18.
double Tenth_To(std::size_t exponent) {
  static constexpr auto tenths = [] {
    std::array<double, digits + 1> powers{};
    for (std::size_t place = 0; place <= digits; ++place) {
      powers[place] = 1.0 / static_cast<double>(Ten_To(place));
    }
    return powers;
  }();
  return tenths[exponent];
}

// The digits behind those that are kept: three of them, and what part of a unit follows.
struct Guard {
  Limb digits;
  double behind;
};

// `rest` is what the limb before `next` holds behind its kept digits, and has `length` digits.
Guard Guard_Of(Limb rest, std::size_t length, const Limb* next) {
  const bool has_all = length >= division_guard_digits;
  const std::size_t behind =
      has_all ? length - division_guard_digits : digits + length - division_guard_digits;
  const Limb before = has_all ? 0 : rest * Ten_To(division_guard_digits - length);
  const Limb* const limb = has_all ? &rest : next++;
  const Limb guard = *limb / Ten_To(behind);
  const Limb left = *limb - guard * Ten_To(behind);
  return {before + guard, (static_cast<double>(left) + Part_Of_Base(*next)) * Tenth_To(behind)};
}

// Adds `unit`, which is below the base, to a limb, and what runs over to those before it.
void Raise_Up(Limb* limb, Limb unit) {
  *limb += unit;
  for (; *limb >= base; ++*limb) *limb-- -= base;
}

}  // namespace

// The digits are those of a (1 - g 10^-s) / b, where g is what the reciprocal's digits times the
// divisor's N significant ones leave of 10^s, s = p + N - 1. That takes less than ten units of
// digit p off a / b, which is divided limb by limb, and so needs to be known to some digits only.
bool Divide(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  Expects(digits_kept > 0);
  if (b.count() != 1 || a.is_zero()) return false;
  const std::size_t p = digits_kept + division_guard_digits;
  const Significant k = Without_Zeros(*b.data());
  const std::size_t length = Count_Digits(k.digits);
  const bool is_told = p >= static_cast<std::size_t>(least_quick_precision) &&
                       Ends_Beyond_Doubt(length, p) && Digits_Behind_First(p) >= length;
  const bool is_special = (k.digits == 1 && Whole_Zeros(b, k.zeros) == 0) || Has_Digits_Of(a, b, k);
  if (!is_told || is_special) return false;

  const std::size_t count = Count_For(p) + 3;
  Scratch scratch(2 * count + 2);
  const Divisor divisor(*b.data());
  const Limbs_Down quotient = Divide_Down(a, divisor, count, scratch.data());
  Limb* const highest = quotient.highest;
  if (*highest == 0) return false;
  const std::size_t in_highest = Count_Digits(*highest);
  const std::size_t last = digits_kept > in_highest ? Count_For(digits_kept - in_highest) : 0;
  const std::size_t cut = in_highest + last * digits - digits_kept;
  const Limb rest = highest[last] % Ten_To(cut);
  const Guard guard = Guard_Of(rest, cut, highest + last + 1);

  const double exact = static_cast<double>(guard.digits) + guard.behind;
  constexpr double safe = 1e-6;  // more than what the floats may be wrong by
  Told_Rounding rounding = Round_Between(exact - most_missing - safe, exact + safe);
  if (rounding == Told_Rounding::in_doubt) {
    const Limb g = Rest_Of_Power(k.zeros == 0 ? divisor : Divisor(k.digits), p + length - 1);
    const double leading =
        (static_cast<double>(highest[0]) + Part_Of_Base(highest[1])) * Tenth_To(in_highest);
    const double lowered = exact - leading * static_cast<double>(g) * Tenth_To(length - 1);
    rounding = Round_Between(lowered - safe, lowered + safe);
    if (rounding == Told_Rounding::in_doubt) return false;
  }

  highest[last] -= rest;
  Raise_Up(highest + last, rounding == Told_Rounding::is_raised ? Ten_To(cut) : 0);
  Limb* const limbs = scratch.data() + count + 1;
  for (std::size_t place = 0; place < last + 2; ++place)
    Copy(highest + last - place, 1, limbs + place);
  Trim({limbs, last + 2, quotient.top - b.low - static_cast<std::int64_t>(last),
        a.negative != b.negative},
       result);
  return true;
}

}  // namespace quorvex::limbs
