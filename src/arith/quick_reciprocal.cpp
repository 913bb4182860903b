#include "arith/quick_reciprocal.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "arith/multiply_digits.h"
#include "arith/subtract_digits.h"
#include "host/platform.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Why the iteration ends with floor((10^s - 1) / k), s = p + N - 1.
//
// It takes x to x (2 - k x) = (1/k)(1 - e^2), where e = 1 - k x, cut to p + 2 digits, and ends when
// p + 1 digits of two rounds agree. Let L = 10^(s+2) / k be the limit in units of digit p + 2.
//
// 1. At the end e < 10^-p or so, so that e^2 is far below a unit of any digit kept, and the last
//    round gives floor(L - t), or floor(L - c - t) in rounds whose product k x ends in a zero:
//    there the complement is short by one unit of the product, which has p + N + 1 digits, so that
//    c is below 10^(1-N) units. t is below 10^(2-p), and above 0.
// 2. If L is whole, both are L - 1, since c < 1. If not, the fraction of L is at least 1/k > 10^-N,
//    and where it is not below c + t, both are floor(L). Either way that is the floor above, with
//    two digits more.
// 3. If the fraction is below c + t, rounds can differ by one in the last digit, and the digits
//    before it differ only if that digit is a zero. So a zero there is let through only with a
//    fraction of at least 10^(1-N). If k itself ends in j zeros, each round is cut by the same c,
//    which is below the least fraction, 10^j/k.
// 4. The fixed rounds before the digits are compared leave e below 10^(-p/4): they begin with e at
//    most 0.6 (k = 2) or 0.52, and there are log2 p + ln n2 of them, rounded. With p of 24 or more
//    that is 10^-6, and the first digit, which is never corrected afterwards, is right if the next
//    five are not all zeros. Digits once found to agree can't change in a later round by less than
//    their last one, and e^2 is too small for that: the end is not called too early.
constexpr std::int32_t least_precision = 24;
constexpr std::size_t digits_behind_first = 5;
constexpr std::size_t extra_digits = 2;  // that the iteration keeps beyond p

constexpr std::size_t word_digits = 18;
constexpr std::uint64_t word_base = 1'000'000'000'000'000'000U;
__extension__ using Wide = unsigned __int128;

bool All(std::string_view digits, char digit) {
  return digits.find_first_not_of(digit) == std::string_view::npos;
}

std::uint64_t To_Word(std::string_view digits) {
  std::uint64_t word = 0;
  for (const char digit : digits) word = word * 10 + static_cast<std::uint64_t>(digit - '0');
  return word;
}

void Write_Word(char* out, std::uint64_t word) {
  for (std::size_t place = word_digits; place > 0; word /= 10) {
    out[--place] = static_cast<char>('0' + word % 10);
  }
}

// `count` digits of 99...9 / k, for a k of one word at most; what is left over goes to `rest`. The
// nines that give no digit yet, one less than k has digits, come first.
NumberText Divide_Nines(std::uint64_t k, std::size_t k_digits, std::size_t count,
                        std::uint64_t& rest) {
  rest = To_Word(NumberText(k_digits - 1, '9'));
  const std::size_t words = (count + word_digits - 1) / word_digits;
  NumberText digits(words * word_digits, '0');
  // Zeros in front of the nines fill the first word.
  const std::size_t filled = words * word_digits - count;
  for (std::size_t word = 0; word < words; ++word) {
    std::uint64_t scale = word_base;
    for (std::size_t place = 0; word == 0 && place < filled; ++place) scale /= 10;
    const Wide dividend = Wide{rest} * scale + (scale - 1);
    rest = static_cast<std::uint64_t>(dividend % k);
    Write_Word(digits.data() + word * word_digits, static_cast<std::uint64_t>(dividend / k));
    if (word % (digits_between_yields / word_digits) == 0) Yield();
  }
  digits.erase(0, filled);
  return digits;
}

std::optional<NumberText> Short_Reciprocal(std::string_view k, bool ends_in_zeros,
                                           std::size_t count) {
  std::uint64_t rest = 0;
  NumberText digits = Divide_Nines(To_Word(k), k.size(), count, rest);
  // With a nine in the place of the last digit's ten, `rest` is one less than that of 10^(s+2).
  const bool may_waver = digits.back() == '0' && rest < 9 && !ends_in_zeros;
  if (may_waver) return std::nullopt;
  return digits;
}

// 2 - k x as a 1 and decimals, a little below it: the nines complement of the decimals of k x.
NumberText Two_Less(std::string_view product, std::size_t length) {
  NumberText complement(length, '9');
  complement.front() = '1';
  const std::size_t count = std::min(product.size(), length - 1);
  for (std::size_t place = 0; place < count; ++place) {
    complement[place + 1] = static_cast<char>('0' + '9' - product[place]);
  }
  return complement;
}

// Digits of a fraction, to a count of places: a product has no zeros in front.
void Pad_Left(NumberText& digits, std::size_t places) {
  if (digits.size() < places) digits.insert(0, places - digits.size(), '0');
}

// At least `count` digits of 1/k, at most three units of the last one too low, for a k of more than
// one word; empty where a product can't be formed.
//
// Newton's iteration with a precision that doubles. Each step cuts k and the complement to four
// digits more than it keeps, so that the result is off by less than a thousandth of a unit besides
// the cut itself, and takes one unit off to stay below 1/k. With m digits and an error of 3 units,
// e^2 comes to less than a hundredth of a unit of 2m - 4 digits.
NumberText Approach(std::string_view k, std::size_t count) {
  constexpr std::size_t more = 4;
  constexpr std::size_t first = word_digits - 2;
  std::uint64_t rest = 0;
  // One more in the last digit of a shortened k makes the quotient too low, and not too high.
  NumberText x = Divide_Nines(To_Word(k.substr(0, word_digits)) + 1, word_digits, first, rest);
  while (x.size() < count) {
    Yield();
    const std::size_t next = std::min(count, 2 * x.size() - more);
    const NumberText leading(k.substr(0, next + more));
    NumberText product = Multiply_Digits(leading, x);
    if (Has_Token_Mark(product)) return {};
    Pad_Left(product, leading.size() + x.size() - 1);
    NumberText better = Multiply_Digits(x, Two_Less(product, next + more));
    if (Has_Token_Mark(better)) return {};
    Pad_Left(better, x.size() + next + more - 1);
    better.resize(next);
    x = Subtract_Digits(better, "1", false).Difference;
    Pad_Left(x, next);
  }
  return x;
}

std::optional<NumberText> Long_Reciprocal(std::string_view k, std::size_t count) {
  constexpr std::size_t guard = 8;
  NumberText digits = Approach(k, count + guard + extra_digits);
  if (digits.empty()) return std::nullopt;
  // The error can reach no further left than the guard digits, and the fraction is above 10^-8.
  const auto guards = std::string_view(digits).substr(count, guard);
  if (All(guards, '0') || All(guards, '9')) return std::nullopt;
  digits.resize(count);
  return digits;
}

}  // namespace

std::optional<NumberText> Quick_Reciprocal(const NumberText& k, std::int32_t p) {
  if (p < least_precision) return std::nullopt;
  const auto length = static_cast<std::size_t>(p);
  const std::size_t zeros = Count_Trailing_Zeros(k);
  const auto significant = std::string_view(k).substr(0, k.size() - zeros);
  if (significant == "1") return NumberText(length, '9');

  const std::size_t count = length + extra_digits;
  std::optional<NumberText> digits = significant.size() <= word_digits
                                         ? Short_Reciprocal(significant, zeros > 0, count)
                                         : Long_Reciprocal(significant, count);
  if (!digits || All(std::string_view(*digits).substr(1, digits_behind_first), '0')) {
    return std::nullopt;
  }
  digits->resize(length);
  return digits;
}

}  // namespace quorvex
