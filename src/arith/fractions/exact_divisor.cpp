// Euclid's algorithm on binary words, many steps at once by the leading bits of both numbers
// (D. H. Lehmer, Euclid's Algorithm for Large Numbers, Amer. Math. Monthly 45, 1938; the test for
// how long the leading bits tell the quotient is that of G. E. Collins, as T. Jebelean has it in A
// Double-Digit Lehmer-Euclid Algorithm, J. Symbolic Computation 19, 1995).
#include "arith/fractions/exact_divisor.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

#include "arith/limbs/limbs.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

using Word = std::uint64_t;
using limbs::Wide;
__extension__ using Signed_Wide = __int128;

constexpr std::size_t word_bits = 64;
constexpr std::size_t leading_bits = 126;

// The least word first, none of them 0 at the end.
using Number = std::vector<Word>;

void Trim(Number& number) {
  while (!number.empty() && number.back() == 0) number.pop_back();
}

std::size_t Bits(const Number& number) {
  if (number.empty()) return 0;
  return number.size() * word_bits - static_cast<std::size_t>(std::countl_zero(number.back()));
}

bool Is_Less(const Number& a, const Number& b) {
  if (a.size() != b.size()) return a.size() < b.size();
  return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

// The low 128 bits of a number without its lowest bits.
Wide Shifted_Right(const Number& number, std::size_t bits) {
  const std::size_t first = bits / word_bits;
  const auto word = [&](std::size_t place) {
    return place < number.size() ? Wide{number[place]} : Wide{0};
  };
  const std::size_t rest = bits % word_bits;
  const Wide low = word(first) | (word(first + 1) << word_bits);
  if (rest == 0) return low;
  return (low >> rest) | (word(first + 2) << (2 * word_bits - rest));
}

NumberText Written(Number number) {
  NumberText text;
  std::vector<Word> parts;
  while (!number.empty()) {
    Yield();
    Wide rest = 0;
    for (std::size_t place = number.size(); place-- > 0;) {
      rest = (rest << word_bits) | number[place];
      number[place] = static_cast<Word>(rest / limbs::base);
      rest %= limbs::base;
    }
    parts.push_back(static_cast<Word>(rest));
    Trim(number);
  }
  text.resize(parts.size() * limbs::digits);
  for (std::size_t part = 0; part < parts.size(); ++part) {
    limbs::Write(text.data() + (parts.size() - 1 - part) * limbs::digits, parts[part]);
  }
  text.erase(0, std::min(text.find_first_not_of('0'), text.size()));
  return text;
}

// a -= factor b 2^shift.
void Subtract_Multiple(Number& a, const Number& b, Word factor, std::size_t shift) {
  const std::size_t bits = shift % word_bits;
  Wide carry = 0;
  Word before = 0;
  Word borrow = 0;
  for (std::size_t place = 0, at = shift / word_bits; at < a.size(); ++place, ++at) {
    if (place < b.size()) carry += Wide{factor} * b[place];
    const auto product = static_cast<Word>(carry);
    carry >>= word_bits;
    const Word moved = bits == 0 ? product : (product << bits) | (before >> (word_bits - bits));
    before = product;
    const Wide taken = Wide{moved} + borrow;
    borrow = Wide{a[at]} < taken ? 1 : 0;
    a[at] -= static_cast<Word>(taken);
  }
  Expects(borrow == 0);
  Trim(a);
}

// a modulo b. Every step takes off a multiple whose factor is estimated from below.
void Reduce(Number& a, const Number& b) {
  while (!Is_Less(a, b)) {
    Yield();
    const std::size_t a_bits = Bits(a);
    const std::size_t b_bits = Bits(b);
    const std::size_t a_shift = a_bits > 126 ? a_bits - 126 : 0;
    const std::size_t b_shift = b_bits > 63 ? b_bits - 63 : 0;
    const Wide divisor = Shifted_Right(b, b_shift) + static_cast<Word>(b_shift > 0 ? 1 : 0);
    if (divisor == 0) return;  // only if b is 0, which leaves a as it is
    Wide factor = Shifted_Right(a, a_shift) / divisor;
    std::size_t shift = 0;
    if (a_shift >= b_shift) {
      shift = a_shift - b_shift;
    } else {
      factor >>= b_shift - a_shift;
    }
    // A short divisor leaves a factor of two words, of which the upper one does.
    if (const auto upper = static_cast<Word>(factor >> word_bits); upper != 0) {
      factor = upper;
      shift += word_bits;
    }
    if (factor == 0) {
      factor = 1;
      shift = 0;
    }
    Subtract_Multiple(a, b, static_cast<Word>(factor), shift);
  }
}

// A number, or where that is far longer than `modulus`, what it leaves modulo that: the whole of it
// would cost the square of its length.
Number Read(std::string_view digits, const Number& modulus = {}) {
  constexpr std::size_t spare_words = 8;
  const std::size_t most = modulus.empty() ? digits.size() : 2 * modulus.size() + spare_words;
  Number number;
  number.reserve(digits.size() / 19 + 1);
  while (!digits.empty()) {
    Yield();
    const std::size_t count = (digits.size() - 1) % limbs::digits + 1;
    Wide carry = limbs::Read(digits.substr(0, count));
    for (Word& word : number) {
      carry += Wide{word} * limbs::base;
      word = static_cast<Word>(carry);
      carry >>= word_bits;
    }
    if (carry != 0) number.push_back(static_cast<Word>(carry));
    if (number.size() > most) Reduce(number, modulus);
    digits.remove_prefix(count);
  }
  return number;
}

// What several steps make of two numbers: a becomes A a - B b, and b becomes D b - C a; or all that
// with the other sign, after an odd count of steps.
struct Steps {
  Word A = 1;
  Word B = 0;
  Word C = 0;
  Word D = 1;
  bool odd = false;
};

// As many steps as the leading bits x and y, x the greater, of both numbers tell beyond doubt.
//
// Let a step leave z of x, and let its factors grow to C' and D'. Of the numbers themselves it
// leaves z 2^h + C' e - D' f or that with the other sign, where e and f, below 2^h, are what stands
// behind the leading bits. As D' is the greater factor, z >= D' makes that a number from 0 on, and
// y - z >= D + D' makes it less than what y stands for: then it is the remainder. No factor gets
// longer than half of x, since its product with y is no more than x was.
Steps Steps_By_Words(Word x, Word y) {
  Steps steps;
  while (y != 0) {
    const Word quotient = x / y;
    const Word rest = x - quotient * y;
    const Word factor = steps.B + quotient * steps.D;
    if (rest < factor || y - rest < factor + steps.D) break;
    steps.A = std::exchange(steps.C, steps.A + quotient * steps.C);
    steps.B = std::exchange(steps.D, factor);
    steps.odd = !steps.odd;
    x = std::exchange(y, rest);
  }
  return steps;
}

// The leading bits of x, and those of y that stand in the same places.
Steps Steps_By_Leading(Wide x, Wide y, int bits) {
  const auto high = static_cast<Word>(x >> word_bits);
  const int length =
      high != 0 ? 128 - std::countl_zero(high) : 64 - std::countl_zero(static_cast<Word>(x));
  const int shift = std::max(length - bits, 0);
  return Steps_By_Words(static_cast<Word>(x >> shift), static_cast<Word>(y >> shift));
}

void Apply(const Steps& steps, Wide& x, Wide& y) {
  const Wide before = x;
  x = steps.A * x - steps.B * y;
  y = steps.D * y - steps.C * before;
  if (!steps.odd) return;
  x = Wide{0} - x;
  y = Wide{0} - y;
}

Steps Joined(const Steps& first, const Steps& then) {
  return {then.A * first.A + then.B * first.C, then.A * first.B + then.B * first.D,
          then.C * first.A + then.D * first.C, then.C * first.B + then.D * first.D,
          first.odd != then.odd};
}

// The steps that two words of leading bits tell: those by their leading bits in turn, and by the
// leading bits of what these leave. Of the latter it is enough that neither number can become less
// than 0: they needn't be remainders to have the same divisors.
Steps Steps_By(Wide x, Wide y) {
  constexpr int bits_of_first = 62;
  constexpr int bits_of_second = 58;  // which most often leaves room for what is in doubt
  const Steps first = Steps_By_Leading(x, y, bits_of_first);
  if (first.B == 0) return first;
  Apply(first, x, y);
  const Steps then = Steps_By_Leading(x, y, bits_of_second);
  Apply(then, x, y);
  const Steps both = Joined(first, then);
  return y >= both.D && x - y >= Wide{both.B} + both.D ? both : first;
}

// The words of x's multiples less those of y's, the lowest first.
class Difference {
 public:
  Difference(Word x_factor, Word y_factor) : x_factor_(x_factor), y_factor_(y_factor) {}

  Word next(Word x, Word y) {
    // Factors have 62 bits at most, so that products have room beside the sign.
    rest_ += static_cast<Signed_Wide>(Wide{x_factor_} * x);
    rest_ -= static_cast<Signed_Wide>(Wide{y_factor_} * y);
    const auto word = static_cast<Word>(rest_);
    rest_ >>= word_bits;
    return word;
  }

 private:
  Word x_factor_;
  Word y_factor_;
  Signed_Wide rest_ = 0;
};

void Apply(const Steps& steps, Number& a, Number& b) {
  b.resize(a.size());
  // Of the two numbers, x is the one of which more is taken.
  Number& x = steps.odd ? b : a;
  Number& y = steps.odd ? a : b;
  Difference first = steps.odd ? Difference(steps.B, steps.A) : Difference(steps.A, steps.B);
  Difference second = steps.odd ? Difference(steps.C, steps.D) : Difference(steps.D, steps.C);
  for (std::size_t place = 0; place < a.size(); ++place) {
    const Word x_word = x[place];
    const Word y_word = y[place];
    a[place] = first.next(x_word, y_word);
    b[place] = second.next(y_word, x_word);
  }
  Trim(a);
  Trim(b);
}

Number Common_Divisor(Number a, Number b) {
  if (Is_Less(a, b)) std::swap(a, b);
  while (a.size() > 1 && !b.empty()) {
    Yield();
    const std::size_t bits = Bits(a);
    const std::size_t shift = bits > leading_bits ? bits - leading_bits : 0;
    const Steps steps = Steps_By(Shifted_Right(a, shift), Shifted_Right(b, shift));
    if (steps.B == 0) {
      Reduce(a, b);
      std::swap(a, b);
    } else {
      Apply(steps, a, b);
    }
  }
  if (b.empty()) return a;
  return {std::gcd(a.front(), b.front())};
}

}  // namespace

NumberText Exact_Divisor(std::string_view a, std::string_view b) {
  Expects(Count_Leading_Zeros(a) < a.size() || Count_Leading_Zeros(b) < b.size());
  const std::size_t zeros = std::min(Count_Trailing_Zeros(a), Count_Trailing_Zeros(b));
  a.remove_suffix(zeros);
  b.remove_suffix(zeros);
  if (a.size() < b.size()) std::swap(a, b);
  const Number shorter = Read(b);
  return Written(Common_Divisor(Read(a, shorter), shorter)).append(zeros, '0');
}

}  // namespace quorvex
