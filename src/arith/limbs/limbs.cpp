#include "arith/limbs/limbs.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/digit_words.h"
#include "native/generic/limb_text.h"

namespace quorvex::limbs {
namespace {

constexpr std::size_t word_digits = 8;

// The number that the last `count` of eight digits write, seven at most.
Limb Read_Last(const char* text, std::size_t count) {
  const std::size_t others = word_digits - count;
  return native::Join_Digits(native::Load_Word(text) >> (8 * others) << (8 * others));
}

}  // namespace

Limb Read(std::string_view text) {
  Expects(text.size() <= digits);
  const char* const begin = text.data();
  const std::size_t count = text.size();
  if (count == digits) return native::Limb_Reader().read(begin);
  if (count < word_digits) {
    return count == 0 ? 0 : native::Join_Digits(native::Load_Short(begin, count));
  }
  if (count >= 2 * word_digits) {
    const Limb limb = native::Sixteen_Reader().read(begin);
    return count == 2 * word_digits ? limb : limb * 10 + static_cast<Limb>(text.back() - '0');
  }
  const Limb limb = native::Join_Digits(native::Load_Word(begin));
  const std::size_t rest = count - word_digits;
  return rest == 0 ? limb : limb * powers_of_ten[rest] + Read_Last(begin + rest, rest);
}

void Write(char* out, Limb limb) {
  Expects(limb < base);
  native::Write_Limb(out, limb);
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

}  // namespace quorvex::limbs
