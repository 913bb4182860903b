#include "native/generic/limbs.h"

#include "expects.h"
#include "native/generic/digit_words.h"
#include "native/generic/limb_text.h"

namespace quorvex::native {
namespace {

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
  Limb_Reader reader;
  for (; count >= limb_digits; ++limbs) {
    count -= limb_digits;
    *limbs = reader.read(text + count);
  }
  std::uint64_t bad = 0;
  if (count > 0) *limbs = Read_Partial(text, count, bad);
  return bad == 0 && reader.has_only_digits();
}

std::size_t Write_Limbs(const Limb* limbs, std::size_t count, char* out) {
  while (count > 0 && limbs[count - 1] == 0) --count;
  Expects(count > 0);
  std::size_t written = Write_Number(out, limbs[count - 1]);
  for (std::size_t i = count - 1; i-- > 0; written += limb_digits)
    Write_Limb(out + written, limbs[i]);
  return written;
}

}  // namespace quorvex::native
