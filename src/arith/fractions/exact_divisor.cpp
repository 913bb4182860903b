// Euclid's algorithm on binary words, many steps at once by the leading bits of both numbers
// (D. H. Lehmer, Euclid's Algorithm for Large Numbers, Amer. Math. Monthly 45, 1938; the test for
// how long the leading bits tell the quotient is that of D. E. Knuth, The Art of Computer
// Programming 2, 4.5.2, algorithm L).
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
constexpr std::size_t leading_bits = 62;  // so that sums with a coefficient stay in a signed word

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

// What several steps make of two numbers: a becomes A a + B b, and b becomes C a + D b.
struct Steps {
  std::int64_t A = 1;
  std::int64_t B = 0;
  std::int64_t C = 0;
  std::int64_t D = 1;
};

// As many steps as the leading bits of both tell beyond doubt.
Steps Steps_By(std::int64_t x, std::int64_t y) {
  Steps steps;
  while (y + steps.C != 0 && y + steps.D != 0) {
    const std::int64_t quotient = (x + steps.A) / (y + steps.C);
    if (quotient != (x + steps.B) / (y + steps.D)) break;
    steps.A = std::exchange(steps.C, steps.A - quotient * steps.C);
    steps.B = std::exchange(steps.D, steps.B - quotient * steps.D);
    x = std::exchange(y, x - quotient * y);
  }
  return steps;
}

void Apply(const Steps& steps, Number& a, Number& b) {
  b.resize(a.size());
  Signed_Wide first = 0;
  Signed_Wide second = 0;
  for (std::size_t place = 0; place < a.size(); ++place) {
    const auto x = static_cast<Signed_Wide>(a[place]);
    const auto y = static_cast<Signed_Wide>(b[place]);
    first += x * steps.A + y * steps.B;
    second += x * steps.C + y * steps.D;
    a[place] = static_cast<Word>(first);
    b[place] = static_cast<Word>(second);
    first >>= word_bits;
    second >>= word_bits;
  }
  Trim(a);
  Trim(b);
}

Number Common_Divisor(Number a, Number b) {
  if (Is_Less(a, b)) std::swap(a, b);
  while (a.size() > 1 && !b.empty()) {
    Yield();
    const std::size_t shift = Bits(a) - leading_bits;
    const Steps steps = Steps_By(static_cast<std::int64_t>(Shifted_Right(a, shift)),
                                 static_cast<std::int64_t>(Shifted_Right(b, shift)));
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
