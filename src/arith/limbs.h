// Numbers in limbs of eighteen digits, least first, for divisions that are too short to be worth
// the products of long texts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

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

/// 10 to the `exponent`, of at most 18.
Limb Ten_To(std::size_t exponent);

/// The number that at most eighteen digits write.
Limb Read(std::string_view text);

/// Writes eighteen digits.
void Write(char* out, Limb limb);

/// How many digits a number above 0 has.
std::size_t Count_Digits(Limb limb);

/// A whole number into `Count_For` its digits limbs.
void Read_Number(std::string_view text, Limb* out);

/// The first digits of a text into `count` limbs; zeros behind a text that is shorter.
void Read_Fraction(std::string_view text, std::size_t count, Limb* out);

/// out = a b, in the sum of their counts of limbs. One of them has at most 256 limbs.
void Multiply(Limb* out, const Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count);

/// Takes the lowest limb off a column of products; what is left is the carry into the next.
Limb Take_Limb(Wide& column);

/// Division by a number of one limb.
class Divisor {
 public:
  /// `number` is above 0 and below the base.
  explicit Divisor(Limb number);

  Limb number() const { return number_; }

  /// Divides rest * base + limb; `rest`, which is below the number, becomes the new rest.
  Limb divide(Limb& rest, Limb limb) const;

 private:
  Limb number_;
  unsigned shift_;
  Limb shifted_;
  Limb reciprocal_;
};

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
  std::array<Limb, 128> few_;
  std::vector<Limb> many_;
};

}  // namespace quorvex::limbs
