// Text to balanced points for waves, in general registers and then in Lanes, whose header comes
// first.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "native/generic/digit_words.h"
#include "native/generic/grain.h"

namespace quorvex::native {
namespace {

struct Two_Points {
  std::uint64_t low;
  std::uint64_t high;
};

template <std::size_t D>
Two_Points Read_Group(const char* text, std::uint64_t& bad) {
  static_assert(D == 8 || D == 10);
  const std::uint64_t head = Load_Word(text);
  bad |= Non_Digits(head);
  if constexpr (D == 8) {
    const std::uint64_t fours = Join_To_Fours(head);
    return {fours >> 32U, fours & 0xFFFFU};
  }
  const std::uint64_t tail = Load_Word(text + 2);
  bad |= Non_Digits(tail);
  return {Join_Digits(tail & ~std::uint64_t{0xFFFFFF}), Join_Digits(head << 24U)};
}

// What is above half of the base is taken from the next point.
template <std::size_t D>
void Balance_Points(double* points, std::size_t count) {
  constexpr double base = D == 8 ? 1e4 : 1e5;
  Lanes before = Lanes::All(0);
  for (std::size_t i = 0; i < count; i += Lanes::count) {
    const Lanes point = Lanes::Load(points + i);
    const Lanes above = If_Negative(Lanes::All(base / 2) - point, Lanes::All(1));
    const Lanes rest = Take_Product(above, Lanes::All(base), point);
    (rest + From_Below(before, above)).store(points + i);
    before = above;
  }
}

template <std::size_t D>
bool Read_Grains_Of(const char* text, std::size_t count, double* points, double* end) {
  double* const start = points;
  std::uint64_t bad = 0;
  const auto put = [&points](const Two_Points& group) {
    *points++ = static_cast<double>(static_cast<std::int64_t>(group.low));
    *points++ = static_cast<double>(static_cast<std::int64_t>(group.high));
  };
  for (; count >= D; count -= D) put(Read_Group<D>(text + count - D, bad));
  if (count > 0) {
    char whole[D];
    std::memset(whole, '0', D);
    std::memcpy(whole + D - count, text, count);
    put(Read_Group<D>(whole, bad));
  }
  std::fill(points, end, 0.0);
  Balance_Points<D>(start, static_cast<std::size_t>(end - start));
  return bad == 0;
}

/// Fills all of Grains_For, rounded up to a multiple of sixteen, with zeros behind the last. False
/// if a character is no digit.
inline bool Read_Grains(const char* text, std::size_t count, const Grain& grain, double* points) {
  double* const end = points + (Grains_For(count, grain) + 15) / 16 * 16;
  return grain.digits == coarse_grain.digits
             ? Read_Grains_Of<coarse_grain.digits>(text, count, points, end)
             : Read_Grains_Of<fine_grain.digits>(text, count, points, end);
}

}  // namespace
}  // namespace quorvex::native
