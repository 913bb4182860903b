#include "arith/division/number_quotient.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstdint>

#include "arith/division/quick_reciprocal.h"
#include "arith/division/quotient_limbs.h"
#include "arith/division/told_quotient.h"
#include "arith/division/told_rounding.h"
#include "arith/limbs/limb_division.h"

namespace quorvex::limbs {
namespace {

std::size_t Count_Zeros_Behind(Limb limb) {
  std::size_t zeros = 0;
  for (; limb % 10 == 0; limb /= 10) ++zeros;
  return zeros;
}

// Without zeros at either end.
std::size_t Length_Of(const Number& number) {
  const std::size_t above = (number.count() - 1) * digits;
  return above + Count_Digits(number.data()[number.count() - 1]) -
         Count_Zeros_Behind(*number.data());
}

bool Is_Power_Of_Ten(const Number& number) {
  const Limb top = number.data()[number.count() - 1];
  return number.count() == 1 && top == Ten_To(Count_Digits(top) - 1);
}

std::strong_ordering Compare(Fraction a, Fraction b) {
  for (std::size_t place = 0; place < std::max(a.count, b.count); ++place) {
    if (a[place] != b[place]) return a[place] <=> b[place];
  }
  return std::strong_ordering::equal;
}

// The first limbs of a magnitude, highest first, as a fraction that begins with its first digit.
class Digits_Down {
 public:
  Digits_Down(const Number& number, std::size_t most) : limbs_(most + 2) {
    const std::size_t used = std::min(number.count(), most + 1);
    const Limb* const lowest = number.data() + number.count() - used;
    const Limb factor = Ten_To(digits - Count_Digits(lowest[used - 1]));
    Wide column = 0;
    for (std::size_t place = 0; place < used; ++place) {
      column += Wide{lowest[place]} * factor;
      limbs_.data()[used - 1 - place] = Take_Limb(column);
    }
    set_count(used, most);
  }
  Digits_Down(const Digits_Down&) = delete;
  Digits_Down& operator=(const Digits_Down&) = delete;

  Fraction fraction() { return {limbs_.data(), count_}; }

  void put_zero_before(std::size_t most) {
    Limb last = 0;
    for (std::size_t place = 0; place < count_; ++place) {
      Limb& limb = limbs_.data()[place];
      const Limb tenth = limb / 10;
      const Limb digit = limb - tenth * 10;
      limb = tenth + last * (base / 10);
      last = digit;
    }
    limbs_.data()[count_] = last * (base / 10);
    set_count(count_ + 1, most);
  }

 private:
  void set_count(std::size_t count, std::size_t most) {
    count_ = std::min(count, most);
    while (count_ > 0 && limbs_.data()[count_ - 1] == 0) --count_;
  }

  Scratch limbs_;
  std::size_t count_ = 0;
};

// The first digits of a quotient that is a fraction times a power of ten.
Number To_Number(Told_Quotient& quotient, std::size_t digit_count, std::int64_t power,
                 bool negative) {
  constexpr auto limb_digits = static_cast<std::int64_t>(digits);
  std::int64_t beyond = power % limb_digits;
  if (beyond < 0) beyond += limb_digits;
  const Limb factor = Ten_To(static_cast<std::size_t>(beyond));
  const std::size_t count = Count_For(digit_count);
  const Limb unit = Ten_To(count * digits - digit_count);
  Scratch scratch(count + 1);
  Wide column = 0;
  for (std::size_t place = 0; place < count; ++place) {
    Limb limb = quotient.data()[count - 1 - place];
    if (place == 0) limb -= limb % unit;
    column += Wide{limb} * factor;
    scratch.data()[place] = Take_Limb(column);
  }
  scratch.data()[count] = static_cast<Limb>(column);
  const std::int64_t low = (power - beyond) / limb_digits - static_cast<std::int64_t>(count);
  Number number;
  Trim({scratch.data(), count + 1, low, negative}, number);
  return number;
}

// The rounding where the dividend is a power of ten. Division takes the p digits of the reciprocal,
// R, which is the greatest whole number below the exact quotient. That one is told by its digits
// behind the first p, unless they are next to a whole number, and then by the product of this and
// the divisor.
Told_Rounding Round_Reciprocal(Told_Quotient& quotient, std::int64_t power, const Number& a,
                               const Number& b, const Quotient_Limit& limit) {
  constexpr double next_to_whole = 1e-9;  // more than floats are wrong by
  constexpr double in_guard = 1000;
  const double guard = in_guard * quotient.behind(limit.kept);
  const double behind = quotient.behind(limit.p);
  if (behind >= next_to_whole && behind + quotient.error_behind(limit.p) <= 1 - next_to_whole) {
    return Round_Between(std::floor(guard), std::floor(guard));
  }
  constexpr double half = 0.5;
  if (behind > half && quotient.raise(limit.p)) return Told_Rounding::in_doubt;
  const Number whole = To_Number(quotient, limit.p, power, false);
  Number product;
  Multiply(whole, b, (whole.count() + b.count()) * digits, product);
  const bool is_below = Leading_Power(product) < Leading_Power(a);
  const double next = std::round(guard);
  const double told = (next < in_guard ? next : 0) - (is_below ? 0 : 1);
  return Round_Between(told, told);
}

}  // namespace

bool Divide_By_Many(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  Quotient_Limit limit(digits_kept);
  const std::size_t room = limit.most_limbs();
  if (b.count() < 2 || a.is_zero() || limit.p < least_quick_precision ||
      std::min(b.count() + 1, room) > most_quotient_limbs) {
    return false;
  }
  limit.may_be_less = !Ends_Beyond_Doubt(Length_Of(b), limit.p);
  Digits_Down x(a, room);
  Digits_Down k(b, room);
  if (!Told_Quotient::Begins_Beyond_Doubt(k.fraction(), limit.p)) return false;
  const auto order = Compare(x.fraction(), k.fraction());
  // Equal digits have an answer of their own.
  if (std::is_eq(order)) return false;
  std::int64_t power = Leading_Power(a) - Leading_Power(b);
  if (std::is_gt(order)) {
    x.put_zero_before(room);
    ++power;
  }
  Told_Quotient quotient(limit.p + Told_Quotient::more_digits);
  quotient.divide(x.fraction(), k.fraction());
  const Told_Rounding rounding = !limit.may_be_less && Is_Power_Of_Ten(a)
                                     ? Round_Reciprocal(quotient, power, a, b, limit)
                                     : quotient.rounding(x.fraction(), k.fraction(), limit);
  if (rounding == Told_Rounding::in_doubt) return false;
  if (rounding == Told_Rounding::is_raised && quotient.raise(digits_kept)) ++power;
  result = To_Number(quotient, digits_kept, power, a.negative != b.negative);
  return true;
}

}  // namespace quorvex::limbs
