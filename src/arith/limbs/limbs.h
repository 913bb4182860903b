// Numbers in limbs of eighteen digits, least first, for chains of steps, and for divisions that are
// too short to be worth the products of long texts.
//
// The library of products has limbs of the same size in native/generic/limbs.h, for itself alone:
// it is loaded by its name, may be missing, and shares no compiled code with the engine. It finds
// what is no digit while it reads, since that is how its caller learns of it; here digits are known
// to be some, and reading may yield.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "expects.h"
#include "host/platform.h"

namespace quorvex::limbs {

using Limb = std::uint64_t;
__extension__ using Wide = unsigned __int128;

inline constexpr std::size_t digits = 18;
inline constexpr Limb base = 1'000'000'000'000'000'000;
inline constexpr std::size_t between_yields = digits_between_yields / digits;

inline constexpr std::size_t Count_For(std::size_t digit_count) {
  return (digit_count + digits - 1) / digits;
}

inline constexpr auto powers_of_ten = [] {
  std::array<Limb, digits + 1> powers{1};
  for (std::size_t place = 1; place < powers.size(); ++place) {
    powers[place] = powers[place - 1] * 10;
  }
  return powers;
}();

/// 10 to the `exponent`.
constexpr Limb Ten_To(std::size_t exponent) {
  Expects(exponent <= digits);
  return powers_of_ten[exponent];
}

/// The number that so many digits write, eighteen at most.
Limb Read(std::string_view text);

/// Writes eighteen digits.
void Write(char* out, Limb limb);

/// How many digits a limb has, without zeros before them.
inline std::size_t Count_Digits(Limb limb) {
  Expects(limb > 0 && limb < base);
  // 1233 / 4096 is a little above log10 of 2, and finds the count or one less.
  const auto guess = static_cast<std::size_t>(std::bit_width(limb)) * 1233U >> 12U;
  return guess + static_cast<std::size_t>(limb >= powers_of_ten[guess]);
}

/// A whole number into `Count_For` its digits limbs.
void Read_Number(std::string_view text, Limb* out);

/// The first digits of a text into `count` limbs; zeros behind a text that is shorter.
void Read_Fraction(std::string_view text, std::size_t count, Limb* out);

/// Copies limbs one by one: they have mostly just been written so, and a wider load of them would
/// wait until they are out of the processor's store buffer.
inline void Copy(const Limb* from, std::size_t count, Limb* to) {
  for (std::size_t place = 0; place < count; ++place) {
    Limb limb = from[place];
    __asm__("" : "+r"(limb));  // keeps compilers from joining copies
    to[place] = limb;
  }
}

/// Room for limbs: on the stack if they are few.
class Scratch {
 public:
  explicit Scratch(std::size_t count) {
    if (count <= few_.size()) return;
    Require_Memory(static_cast<double>(count) * sizeof(Limb));
    many_.resize(count);
  }
  Limb* data() { return many_.empty() ? few_.data() : many_.data(); }

 private:
  std::array<Limb, 192> few_;  // three rows of a thousand digits
  std::vector<Limb> many_;
};

}  // namespace quorvex::limbs
