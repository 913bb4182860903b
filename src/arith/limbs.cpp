#include "arith/limbs.h"

#include <algorithm>

#include "arith/limb_division.h"
#include "native/digit_words.h"

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
  // A column is below 9 * 10^36, and what it passes on below 9 bases. It is parted before what it
  // gets is added, so that no column waits for those below it.
  Limb from_first_below = 0;
  Limb from_second_below = 0;
  Limb bases_of_first_below = 0;
  Limb carry = 0;
  const auto add = [&](Limb limb) {
    const Limb sum = limb + from_first_below + from_second_below + carry;
    carry = static_cast<Limb>(sum >= base) + static_cast<Limb>(sum >= 2 * base);
    from_second_below = bases_of_first_below;
    return sum - carry * base;
  };
  for (std::size_t place = 0; place + 1 < a_count + b_count; ++place) {
    const std::size_t end = std::min(place + 1, a_count);
    Wide column = 0;
    for (std::size_t i = place < b_count ? 0 : place - b_count + 1; i < end; ++i) {
      column += Wide{a[i]} * b[place - i];
    }
    const Limb limb = Take_Limb(column);
    out[place] = add(limb);
    const auto passed_on = static_cast<Limb>(column);
    bases_of_first_below = passed_on / base;
    from_first_below = passed_on - bases_of_first_below * base;
  }
  out[a_count + b_count - 1] = add(0);
}

}  // namespace quorvex::limbs
