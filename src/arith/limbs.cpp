#include "arith/limbs.h"

#include <algorithm>
#include <bit>

#include "native/digit_words.h"

namespace quorvex::limbs {
namespace {

constexpr auto powers_of_ten = [] {
  std::array<Limb, digits + 1> powers{1};
  for (std::size_t place = 1; place < powers.size(); ++place) {
    powers[place] = powers[place - 1] * 10;
  }
  return powers;
}();

constexpr std::size_t word_digits = 8;

Limb Read_Full(const char* text) {
  const Limb pair = native::Join_Digits(native::Load_Word(text)) * native::ten_to_8 +
                    native::Join_Digits(native::Load_Word(text + word_digits));
  return pair * 100 + static_cast<Limb>(text[16] - '0') * 10 + static_cast<Limb>(text[17] - '0');
}

// N. Moeller, T. Granlund, Improved division by invariant integers, IEEE Trans. Computers 60
// (2011): the reciprocal of section 2 and algorithm 4. The divisor has its high bit set.
constexpr Limb Reciprocal_Of(Limb divisor) {
  return static_cast<Limb>(((Wide{~divisor} << 64U) | ~Limb{0}) / divisor);
}

inline Limb Divide(Wide dividend, Limb divisor, Limb reciprocal, Limb& rest) {
  const auto high = static_cast<Limb>(dividend >> 64U);
  const auto low = static_cast<Limb>(dividend);
  const Wide guess = Wide{reciprocal} * high + (Wide{high + 1} << 64U) + low;
  auto quotient = static_cast<Limb>(guess >> 64U);
  rest = low - quotient * divisor;
  if (rest > static_cast<Limb>(guess)) {
    --quotient;
    rest += divisor;
  }
  if (rest >= divisor) {
    ++quotient;
    rest -= divisor;
  }
  return quotient;
}

}  // namespace

Limb Ten_To(std::size_t exponent) {
  return powers_of_ten[exponent];
}

Limb Read(std::string_view text) {
  if (text.size() == digits) return Read_Full(text.data());
  Limb limb = 0;
  if (text.size() >= word_digits) {
    limb = native::Join_Digits(native::Load_Word(text.data()));
    text.remove_prefix(word_digits);
  }
  if (text.size() >= word_digits) {
    limb = limb * native::ten_to_8 + native::Join_Digits(native::Load_Word(text.data()));
    text.remove_prefix(word_digits);
  }
  if (text.empty()) return limb;
  return limb * powers_of_ten[text.size()] +
         native::Join_Digits(native::Load_Short(text.data(), text.size()));
}

void Write(char* out, Limb limb) {
  const Limb pair = limb / 100;
  const auto last = static_cast<unsigned>(limb - pair * 100);
  const Limb high = pair / native::ten_to_8;
  native::Store_Word(out, native::Part_Digits(high));
  native::Store_Word(out + word_digits, native::Part_Digits(pair - high * native::ten_to_8));
  out[16] = static_cast<char>('0' + last / 10);
  out[17] = static_cast<char>('0' + last % 10);
}

std::size_t Count_Digits(Limb limb) {
  // 1233 / 4096 is a little above log10 of 2, and finds the count or one less.
  const auto guess = static_cast<std::size_t>(std::bit_width(limb)) * 1233U >> 12U;
  return guess + static_cast<std::size_t>(limb >= powers_of_ten[guess]);
}

void Read_Number(std::string_view text, Limb* out) {
  for (std::size_t place = 0; !text.empty(); ++place) {
    const std::size_t count = std::min(text.size(), digits);
    out[place] = Read(text.substr(text.size() - count));
    text.remove_suffix(count);
    if (place % between_yields == between_yields - 1) Yield();
  }
}

void Read_Fraction(std::string_view text, std::size_t count, Limb* out) {
  for (std::size_t place = count; place-- > 0;) {
    const auto piece = text.substr(0, digits);
    out[place] = piece.empty() ? 0 : Read(piece) * powers_of_ten[digits - piece.size()];
    text.remove_prefix(piece.size());
  }
}

void Multiply(Limb* out, const Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count) {
  // A product of limbs is below 10^36, and 340 of these fit a column.
  Wide column = 0;
  for (std::size_t place = 0; place + 1 < a_count + b_count; ++place) {
    const std::size_t end = std::min(place + 1, a_count);
    for (std::size_t i = place < b_count ? 0 : place - b_count + 1; i < end; ++i) {
      column += Wide{a[i]} * b[place - i];
    }
    out[place] = Take_Limb(column);
  }
  out[a_count + b_count - 1] = static_cast<Limb>(column);
}

Limb Take_Limb(Wide& column) {
  constexpr unsigned shift = 4;
  constexpr Limb divisor = base << shift;
  constexpr Limb reciprocal = Reciprocal_Of(divisor);
  const auto high = static_cast<Limb>(column >> 64U);
  const Limb above = high / base;
  const Wide dividend = ((Wide{high - above * base} << 64U) | static_cast<Limb>(column)) << shift;
  Limb rest = 0;
  const Limb quotient = Divide(dividend, divisor, reciprocal, rest);
  column = (Wide{above} << 64U) + quotient;
  return rest >> shift;
}

Divisor::Divisor(Limb number)
    : number_(number),
      shift_(static_cast<unsigned>(std::countl_zero(number))),
      shifted_(number << shift_),
      reciprocal_(Reciprocal_Of(shifted_)) {}

Limb Divisor::divide(Limb& rest, Limb limb) const {
  Limb shifted_rest = 0;
  const Limb quotient =
      Divide((Wide{rest} * base + limb) << shift_, shifted_, reciprocal_, shifted_rest);
  rest = shifted_rest >> shift_;
  return quotient;
}

}  // namespace quorvex::limbs
