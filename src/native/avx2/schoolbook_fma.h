// Products of short operands in doubles: points of seven digits, sixteen columns at a time. For the
// inclusion of the AVX2 kernels alone.
//
// Balanced points are at most 5 * 10^6 + 1 in size, so columns of up to 180 products stay below
// 2^52, which every sum on the way then holds exactly.
#pragma once

#include <immintrin.h>

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

constexpr std::size_t Rounded_Up(std::size_t count, std::size_t step) {
  return (count + step - 1) / step * step;
}

constexpr std::size_t Short_Points(std::size_t digits) {
  return Rounded_Up(Grains_For(digits, short_grain), 8);
}

// The sums of a[k - i] b[i] for columns from `k` on. Two sums for each take turns, since each waits
// for its last addition.
inline void Add_Columns(Lanes (&sums)[4], const double* a, const double* b, std::size_t from,
                        std::size_t to) {
  Lanes others[4];
  for (std::size_t v = 0; v < 4; ++v) sums[v] = others[v] = Lanes::All(0);
  const auto add = [a, b](Lanes(&to_sums)[4], std::size_t i) {
    const Lanes factor = Lanes::All(b[i]);
    for (std::size_t v = 0; v < 4; ++v)
      to_sums[v] = Add_Product({_mm256_loadu_pd(a - i + 4 * v)}, factor, to_sums[v]);
  };
  std::size_t i = from;
  for (; i + 1 < to; i += 2) {
    add(sums, i);
    add(others, i + 1);
  }
  if (i < to) add(sums, i);
  for (std::size_t v = 0; v < 4; ++v) sums[v] = sums[v] + others[v];
}

// All groups of the product; `a` has columns_at_once zeros before it and after it.
inline void Multiply_Columns(double* groups, std::size_t count, const double* a,
                             std::size_t a_count, const double* b, std::size_t b_count) {
  Group_Carry<short_grain.digits> carry;
  for (std::size_t k = 0; k < 2 * count; k += columns_at_once, groups += columns_at_once / 2) {
    const std::size_t from = k < a_count ? 0 : k - a_count + 1;
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
  return 2 * (Short_Points(a_size) + Short_Points(b_size)) + 3 * columns_at_once;
}

// A square has no second text.
inline std::size_t Multiply_In_Doubles(const char* a_text, std::size_t a_size, const char* b_text,
                                       std::size_t b_size, char* out, void* scratch) {
  const std::size_t a_points = Short_Points(a_size);
  const std::size_t b_points = Short_Points(b_size);
  auto* const before = static_cast<double*>(scratch);
  double* const a = before + columns_at_once;
  double* const a_end = a + a_points;
  for (std::size_t i = 0; i < columns_at_once; i += Lanes::count) {
    Lanes::All(0).store(before + i);
    Lanes::All(0).store(a_end + i);
  }
  const double* b = a;
  double* rest = a_end + columns_at_once;
  if (!Read_Balanced<short_grain.digits>(a_text, a_size, a, a_points)) return 0;
  if (b_text != nullptr) {
    if (!Read_Balanced<short_grain.digits>(b_text, b_size, rest, b_points)) return 0;
    b = rest;
    rest += b_points;
  }
  const std::size_t groups =
      Groups_For(a_size, short_grain) + Groups_For(b_size, short_grain) + 1;
  Multiply_Columns(rest, groups, a, Grains_For(a_size, short_grain), b,
                   Grains_For(b_size, short_grain));
  return Write_Groups_Of<short_grain.digits>(rest, groups, out);
}

}  // namespace
}  // namespace quorvex::native
