// Products of short operands in doubles: points of seven digits, sixteen columns at a time. For the
// inclusion of the AVX2 kernels alone.
//
// Balanced points are at most 5 * 10^6 + 1 in size, so columns of up to 180 products stay below
// 2^52, which every sum on the way then holds exactly.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <cstddef>

#include "native/avx2/digit_lanes_avx2.h"
#include "native/avx2/vector_avx2.h"
// The vectors come first.
#include "native/generic/group_carry.h"

namespace quorvex::native {
namespace {

inline constexpr Grain short_grain = {14, 10'000'000};
inline constexpr std::size_t most_short_points = 180;
inline constexpr std::size_t columns_at_once = 16;

// What columns meet beyond the ends of a factor.
inline constexpr std::size_t zeros_before = columns_at_once;
inline constexpr std::size_t zeros_behind = columns_at_once + 8;

constexpr std::size_t Rounded_Up(std::size_t count, std::size_t step) {
  return (count + step - 1) / step * step;
}

constexpr std::size_t Short_Points(std::size_t digits) {
  return Rounded_Up(Grains_For(digits, short_grain), 8);
}

// Loads are what bounds the sums: compilers may not load anew for each use.
inline Lanes Load_Once(const double* from) {
  Lanes lanes = {_mm256_loadu_pd(from)};
  __asm__("" : "+x"(lanes.lane));
  return lanes;
}

// The sums of a[v - i] b[i] for sixteen columns and i from a multiple of eight to another. Factors
// four apart share the vectors of `a` but one, and have sums of their own, since each sum waits for
// its last addition.
inline void Add_Columns(Lanes (&sums)[4], const double* a, const double* b, std::size_t from,
                        std::size_t to) {
  Lanes others[4];
  for (std::size_t v = 0; v < 4; ++v) sums[v] = others[v] = Lanes::All(0);
  for (std::size_t i = from; i < to; i += 8) {
    for (std::size_t k = i; k < i + 4; ++k) {
      const Lanes factor = Lanes::All(b[k]);
      const Lanes other = Lanes::All(b[k + 4]);
      Lanes below = Load_Once(a - k - 4);
      for (std::size_t v = 0; v < 4; ++v) {
        const Lanes here = Load_Once(a - k + 4 * v);
        sums[v] = Add_Product(here, factor, sums[v]);
        others[v] = Add_Product(below, other, others[v]);
        below = here;
      }
    }
  }
  for (std::size_t v = 0; v < 4; ++v) sums[v] = sums[v] + others[v];
}

// All groups of the product; `a` has zeros_before and zeros_behind, and `b` a multiple of eight
// points.
inline void Multiply_Columns(double* groups, std::size_t count, const double* a,
                             std::size_t a_count, const double* b, std::size_t b_count) {
  Group_Carry<short_grain.digits> carry;
  for (std::size_t k = 0; k < 2 * count; k += columns_at_once, groups += columns_at_once / 2) {
    const std::size_t from = k < a_count ? 0 : (k - a_count + 1) / 8 * 8;
    const std::size_t to = k + columns_at_once < b_count ? k + columns_at_once : b_count;
    Lanes sums[4];
    Add_Columns(sums, a + k, b, from, to);
    carry.take(sums[0], sums[1]).store(groups);
    carry.take(sums[2], sums[3]).store(groups + 4);
  }
  if (!carry.is_settled()) {
    const std::size_t written = Rounded_Up(2 * count, columns_at_once) / 2;
    Settle_Groups(groups - written, written, Power_Of_Ten(short_grain.digits));
  }
}

constexpr std::size_t Short_Scratch(std::size_t a_size, std::size_t b_size) {
  return 2 * (Short_Points(a_size) + Short_Points(b_size)) + zeros_before + zeros_behind +
         columns_at_once;
}

// A square has no second text.
inline std::size_t Multiply_In_Doubles(const char* a_text, std::size_t a_size, const char* b_text,
                                       std::size_t b_size, char* out, void* scratch) {
  const std::size_t a_points = Short_Points(a_size);
  const std::size_t b_points = Short_Points(b_size);
  auto* const before = static_cast<double*>(scratch);
  double* const a = before + zeros_before;
  double* rest = a + a_points + zeros_behind;
  std::fill(before, a, 0.0);
  std::fill(a + a_points, rest, 0.0);
  const double* b = a;
  if (!Read_Balanced<short_grain.digits>(a_text, a_size, a, a_points)) return 0;
  if (b_text != nullptr) {
    if (!Read_Balanced<short_grain.digits>(b_text, b_size, rest, b_points)) return 0;
    b = rest;
    rest += b_points;
  }
  // What balancing carries out of these is taken back from above them.
  const std::size_t groups = Groups_For(a_size, short_grain) + Groups_For(b_size, short_grain);
  Multiply_Columns(rest, groups, a, Grains_For(a_size, short_grain), b, b_points);
  return Write_Groups_Of<short_grain.digits>(rest, groups, out);
}

}  // namespace
}  // namespace quorvex::native
