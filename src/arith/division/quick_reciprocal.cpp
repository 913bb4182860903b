#include "arith/division/quick_reciprocal.h"

#include <algorithm>
#include <cmath>

#include "arith/digits/digit_spans.h"
#include "arith/digits/multiply_digits.h"
#include "arith/division/quotient_limbs.h"
#include "arith/limbs/limb_division.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using limbs::Limb;

// Why the iteration ends with floor((10^s - 1) / k), s = p + N - 1.
//
// It takes x to x (2 - k x) = (1/k)(1 - e^2), where e = 1 - k x, cut to p + 2 digits, and ends when
// p digits of two rounds agree. Let L = 10^(s+2) / k be the limit in units of digit p + 2, and g
// what floor(L) leaves of it, times k: L = floor(L) + g/k.
//
// 1. The last round gives floor(L - t) or floor(L - t - c), t = L e^2. It moves x by x e, less than
//    a unit of digit p and a trifle, so that t is above 0 and below 2 * 10^(3-p). c comes from
//    rounds whose product k x ends in a zero, where the complement is short by ten units of the
//    product's last place; that has p + N + 1 places, so that c is x 10^(s+2) 10^-(p+N), at most
//    10/k.
// 2. If L is whole, the floor above is L - 1, with two digits more. So is what the round gives, if
//    c + t is at most 1; for a k below 10 it is up to 6 less than L, which ends in two zeros then,
//    and shows in those two places alone.
// 3. If not, it is floor(L), or one less where g/k < c + t. (For a k below 10 it can be four less,
//    but floor(L) ends in 33, 66, 11 or two digits of 142857.) One less shows in the first p digits
//    only if digits p + 1 and p + 2 of floor(L) are zeros. Then k floor(L) ends in two zeros and g,
//    which is 10^(s+2) less that, is a multiple of 100. So g/k is at least 100/k, and that is
//    enough if t is below 90/k: always if N <= p - 2.
// 4. The fixed rounds before the digits are compared leave e below 10^(-p/4): they begin with e at
//    most 0.6 (k = 2) or 0.52, and there are log2 p + ln n2 of them, rounded, n2 being 2 or more.
//    The first digit, which is never corrected afterwards, is right if of the digits behind it the
//    first p/4 - 1 are not all zeros.
// 5. Digits found to agree differ from those of the next round by at most x e^2, and e is below the
//    unit of the last one that agrees, times ten, and below 10^-2: less than that unit. So digits
//    once found to agree can't all move on by a unit unseen, and the end is not called too early.
constexpr std::size_t guard_digits = 10;  // that are looked at behind p

// A reciprocal of so many digits at most begins with long division, and a longer one from there.
constexpr std::size_t long_division_digits = 1300;

bool All(std::string_view digits, char digit) {
  return digits.find_first_not_of(digit) == std::string_view::npos;
}

bool First_Digit_May_Waver(std::string_view digits, std::size_t p) {
  return digits.front() == '0' || All(digits.substr(1, Digits_Behind_First(p)), '0');
}

// Divides a row of nines by one limb, limb by limb.
class Nines_Division {
 public:
  Nines_Division(const limbs::Divisor& k, std::size_t nines)
      : k_(k), next_(limbs::Ten_To((nines - 1) % limbs::digits + 1) - 1) {}

  Limb next() {
    const Limb quotient = k_.divide(rest_, next_);
    next_ = limbs::base - 1;
    if (++done_ % limbs::between_yields == 0) Yield();
    return quotient;
  }

  Limb rest() const { return rest_; }

 private:
  const limbs::Divisor& k_;
  Limb next_;
  Limb rest_ = 0;
  std::size_t done_ = 0;
};

// `count` digits of 99...9 / k, the first of them not 0.
NumberText Divide_Nines(const limbs::Divisor& k, std::size_t length, std::size_t count) {
  const std::size_t nines = count + length - 1;
  NumberText digits(limbs::Count_For(nines) * limbs::digits, '0');
  Nines_Division division(k, nines);
  for (std::size_t place = 0; place < digits.size(); place += limbs::digits) {
    limbs::Write(digits.data() + place, division.next());
  }
  digits.erase(0, digits.size() - count);
  return digits;
}

// Lowers a number above 0, of digits, by one.
void Decrement(NumberText& digits) {
  std::size_t place = digits.size() - 1;
  for (; digits[place] == '0'; --place) digits[place] = '9';
  --digits[place];
}

// The first digits of a reciprocal, at most three units of the last one too low and not too high,
// from as many leading digits of k. That of a row of nines begins with a 0.
NumberText Divide_Into_One(std::string_view k, std::size_t count) {
  // Three digits more keep what is cut off k below a hundredth of a unit, one more of the quotient
  // what is cut off there below a quarter.
  constexpr std::size_t more = 3;
  const std::size_t n = limbs::Count_For(count + more);
  k = k.substr(0, n * limbs::digits);
  const bool is_power = k.front() == '1' && All(k.substr(1), '0');
  if (is_power) return NumberText().assign(count, '9');
  limbs::Scratch scratch(2 * n);
  Limb* const divisor = scratch.data();
  Limb* const quotient = divisor + n;
  constexpr Limb tenth = limbs::base / 10;
  limbs::Divide_Fractions({&tenth, 1}, limbs::Read_Down(k, 0, n, divisor), n, quotient);
  NumberText digits(n * limbs::digits, '0');
  for (std::size_t place = 0; place < n; ++place) {
    limbs::Write(digits.data() + place * limbs::digits, quotient[place]);
  }
  digits.resize(count);
  Decrement(digits);
  return digits;
}

}  // namespace

// Newton's iteration from m to `next` digits, 2 m - 4 at most. The numbers are read with their
// point behind the first digit of x, and before that of k.
//
// k is cut to four digits more than are kept, and e = 1 - k x to three more, by its nines
// complement. With x at most three units too low, e is below 3.1 * 10^(1-m), so that its first
// m - 2 digits are zeros and x e^2 is below a tenth of a unit. Cutting k adds a thousandth of a
// unit, cutting e takes off a hundredth, cutting the product one; one more is taken off so that x
// stays below 1/k.
NumberText Refine_Reciprocal(std::string_view k, NumberText x, std::size_t next) {
  const std::size_t m = x.size();
  const NumberText leading(k.substr(0, next + 4));
  NumberText e = Multiply_Digits(leading, x);
  if (e.size() != leading.size() + m - 1) return {};  // no product could be formed
  e.erase(0, m - 2);
  e.resize(next + 4 - m, '0');
  for (char& digit : e) digit = static_cast<char>('0' + '9' - digit);
  e.erase(0, Count_Leading_Zeros(e));  // where a factor has some, the product's end is searched for
  const NumberText product = Multiply_Digits(x, e);
  if (Has_Token_Mark(product)) return {};
  const std::size_t dropped = std::min(product.size(), m + 2);
  digit_spans::Extend(x, next - m, std::string_view(product).substr(0, product.size() - dropped));
  Decrement(x);
  return x;
}

NumberText Leading_Reciprocal(std::string_view k, std::size_t count) {
  if (count <= long_division_digits) return Divide_Into_One(k, count);
  NumberText x = Leading_Reciprocal(k, (count + 5) / 2);
  Yield();
  return x.empty() ? x : Refine_Reciprocal(k, std::move(x), count);
}

namespace {

// Raises digits of 1/k, which are followed by nines, if they are one too low; true if they were.
// Those that are all nines are not: k would be a power of ten.
bool Raise_If_Too_Low(const NumberText& k, NumberText& digits) {
  if (All(digits, '9')) return false;
  NumberText higher = digits;
  std::size_t place = higher.size() - 1;
  for (; higher[place] == '9'; --place) higher[place] = '0';
  ++higher[place];
  if (Multiply_Digits(k, higher).size() >= k.size() + digits.size()) return false;
  digits = std::move(higher);
  return true;
}

std::optional<NumberText> Long_Reciprocal(const NumberText& k, std::size_t p) {
  NumberText digits = Leading_Reciprocal(k, p + guard_digits);
  if (digits.empty()) return std::nullopt;
  const NumberText guards = digits.substr(p);
  digits.resize(p);
  // What is dropped is then next to nothing.
  bool in_doubt = All(std::string_view(guards).substr(0, std::min(guard_digits, p - 2)), '0');
  if (All(std::string_view(guards).substr(0, guard_digits - 1), '9')) {
    in_doubt = Raise_If_Too_Low(k, digits);
  }
  if (in_doubt && !Ends_Beyond_Doubt(k.size(), p)) return std::nullopt;
  if (First_Digit_May_Waver(digits, p)) return std::nullopt;
  return digits;
}

bool First_Digit_May_Waver(const limbs::Divisor& k, std::size_t length, std::size_t p) {
  const Limb behind_first = (limbs::Ten_To(length) - 1) % k.number() + 1;
  const std::size_t behind = std::min(Digits_Behind_First(p), limbs::digits);
  return limbs::Wide{behind_first} * limbs::Ten_To(behind) <= k.number();
}

// 10^s less k times the digits, s = p + N - 1: a number from 1 to k.
Limb Missing_From_Power(const limbs::Divisor& k, std::size_t length, std::size_t p) {
  const std::size_t nines = p + length - 1;
  Nines_Division division(k, nines);
  for (std::size_t place = 0; place < limbs::Count_For(nines); ++place) division.next();
  return division.rest() + 1;
}

bool Is_Told(const limbs::Divisor& k, std::size_t length, std::size_t p) {
  if (k.number() == 1) return true;  // nines all along
  if (First_Digit_May_Waver(k, length, p)) return false;
  if (Ends_Beyond_Doubt(length, p)) return true;
  const double dropped =
      10 + 2 * static_cast<double>(k.number()) * std::pow(10, 3 - static_cast<double>(p));
  return 100 * static_cast<double>(Missing_From_Power(k, length, p)) >= dropped;
}

std::optional<NumberText> Short_Reciprocal(std::string_view significant, std::size_t p) {
  const limbs::Divisor k(limbs::Read(significant));
  if (!Is_Told(k, significant.size(), p)) return std::nullopt;
  return Divide_Nines(k, significant.size(), p);
}

}  // namespace

std::optional<NumberText> Quick_Reciprocal(const NumberText& k, std::int32_t p) {
  Expects(Are_Significant(k) && k != "1");
  if (p < least_quick_precision) return std::nullopt;
  const auto length = static_cast<std::size_t>(p);
  Require_Memory(4.0 * (static_cast<double>(p) + static_cast<double>(k.size())));
  const auto significant = std::string_view(k).substr(0, k.size() - Count_Trailing_Zeros(k));
  // Divisors of up to one limb are divided by directly.
  if (significant.size() <= limbs::digits) return Short_Reciprocal(significant, length);
  return Long_Reciprocal(NumberText(significant), length);
}

}  // namespace quorvex
