#include "native/generic/limbs.h"

#include "expects.h"
#include "native/generic/digit_words.h"

namespace quorvex::native {
namespace {

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
    Write_Pairs<limb_digits>(out + written, limbs[i]);
  return written;
}

}  // namespace quorvex::native
