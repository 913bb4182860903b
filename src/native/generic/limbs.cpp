#include "native/generic/limbs.h"

#include <array>
#include <cstring>

#include "expects.h"
#include "native/generic/digit_words.h"

namespace quorvex::native {
namespace {

constexpr std::uint64_t ten_to_16 = ten_to_8 * ten_to_8;

// One limb of eighteen characters; what is found amiss is added to `bad`.
Limb Read_Whole(const char* text, std::uint64_t& bad) {
  const std::uint64_t head = Load_Word(text);
  const std::uint64_t middle = Load_Word(text + 8);
  const std::uint64_t tail = Load_Word(text + 10);
  bad |= Non_Digits(head) | Non_Digits(middle) | Non_Digits(tail);
  const std::uint64_t last = tail >> 48U;
  return (Join_Digits(head) * ten_to_8 + Join_Digits(middle)) * 100 + (last & 0x0FU) * 10 +
         ((last >> 8U) & 0x0FU);
}

// The first characters of a text, too few for a whole limb: seventeen at most.
Limb Read_Partial(const char* text, std::size_t count, std::uint64_t& bad) {
  Limb limb = 0;
  for (std::size_t part = (count - 1) % 8 + 1; count > 0; part = 8) {
    const std::uint64_t word = Load_Short(text, part);
    bad |= Non_Digits(word);
    limb = limb * ten_to_8 + Join_Digits(word);
    count -= part;
    text += part;
  }
  return limb;
}

// The characters of all numbers of two digits.
constexpr auto pairs_of_digits = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// The limb is taken as a number of two digits with a fraction of 64 bits; a hundred times the
// fraction is two digits more. The fraction is too large by less than 2^-57, which the eight steps
// make less than a tenth of the last digit; it must not be too small at all, as numbers are cut.
void Write_Whole(char* out, Limb limb) {
  constexpr unsigned shift = 53;
  constexpr auto reciprocal =
      static_cast<std::uint64_t>((Wide{1} << (64U + shift)) / ten_to_16) + 1;
  Wide pair = (Wide{limb} * reciprocal >> shift) + 1;
  for (std::size_t place = 0; place < limb_digits; place += 2) {
    std::memcpy(out + place, &pairs_of_digits[2 * static_cast<std::size_t>(pair >> 64U)], 2);
    pair = Wide{static_cast<std::uint64_t>(pair)} * 100;
  }
}

}  // namespace

bool Read_Limbs(const char* text, std::size_t count, Limb* limbs) {
  std::uint64_t bad = 0;
  while (count >= limb_digits) {
    count -= limb_digits;
    *limbs++ = Read_Whole(text + count, bad);
  }
  if (count > 0) *limbs = Read_Partial(text, count, bad);
  return bad == 0;
}

std::size_t Write_Limbs(const Limb* limbs, std::size_t count, char* out) {
  while (count > 0 && limbs[count - 1] == 0) --count;
  Expects(count > 0);
  std::size_t written = Write_Number(out, limbs[count - 1]);
  for (std::size_t i = count - 1; i-- > 0; written += limb_digits)
    Write_Whole(out + written, limbs[i]);
  return written;
}

}  // namespace quorvex::native
