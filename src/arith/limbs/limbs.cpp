#include "arith/limbs/limbs.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/digit_words.h"

namespace quorvex::limbs {
namespace {

constexpr std::size_t word_digits = 8;

Limb Read_Full(const char* text) {
  const Limb pair = native::Join_Digits(native::Load_Word(text)) * native::ten_to_8 +
                    native::Join_Digits(native::Load_Word(text + word_digits));
  return pair * 100 + static_cast<Limb>(text[16] - '0') * 10 + static_cast<Limb>(text[17] - '0');
}

}  // namespace

Limb Read(std::string_view text) {
  Expects(text.size() <= digits);
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
  Expects(limb < base);
  native::Write_Pairs<digits>(out, limb);
}

void Write_Few(char* out, Limb limb, std::size_t count) {
  Expects(count > 0 && count <= digits && limb < Ten_To(count));
  for (; count > word_digits; limb /= native::ten_to_8) {
    count -= word_digits;
    native::Store_Word(out + count, native::Part_Digits(limb % native::ten_to_8));
  }
  native::Store_Short(out, native::Part_Digits(limb) >> (8 * (word_digits - count)), count);
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
