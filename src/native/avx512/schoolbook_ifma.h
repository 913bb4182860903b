// Products of short operands in lanes of 52-bit multiplication: limbs of fifteen digits, eight
// columns at a time, each the sum of the low and of the high halves of all products that fall on
// it. For the inclusion of the AVX-512 kernels alone.
//
// A limb is below 2^50, so a low half is below 2^52 and a high half below 2^48: sums of up to 4096
// of them fit 64 bits, and the whole column stays below what Carry takes.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "native/avx512/carry_avx512.h"
#include "native/avx512/digit_lanes_avx512.h"

namespace quorvex::native {
namespace {

inline constexpr std::size_t lane_digits = 15;
inline constexpr std::size_t lane_count = 8;

// Columns in one go: sixteen give four sums that don't wait for each other.
inline constexpr std::size_t columns_at_once = 2 * lane_count;

constexpr std::size_t Limbs_Of(std::size_t digits) {
  return (digits + lane_digits - 1) / lane_digits;
}

constexpr std::size_t Rounded_Up(std::size_t count, std::size_t step) {
  return (count + step - 1) / step * step;
}

inline bool Read_Lanes(const char* text, std::size_t size, std::uint64_t* limbs) {
  __mmask64 bad = 0;
  for (std::size_t end = size; end > 0; limbs += lane_count) {
    _mm512_storeu_si512(limbs, Read_Eight<lane_digits>(text, end, bad));
    end -= end < lane_count * lane_digits ? end : lane_count * lane_digits;
  }
  return bad == 0;
}

// How many digits a limb has that isn't zero. 1233 / 4096 is a little above log10 of 2, and finds
// the count or one less.
inline std::size_t Digits_Of(std::int64_t limb) {
  static constexpr auto powers = [] {
    struct {
      std::int64_t of_ten[lane_digits + 1];
    } all = {};
    for (std::size_t i = 0; i <= lane_digits; ++i) all.of_ten[i] = Power_Of_Ten(i);
    return all;
  }();
  const int bits = 64 - std::countl_zero(static_cast<std::uint64_t>(limb));
  const auto guess = static_cast<std::size_t>(bits) * 1233 / 4096;
  return guess + (limb >= powers.of_ten[guess] ? 1 : 0);
}

// Writes a number whose array may be read to a multiple of eight limbs.
inline std::size_t Write_Lanes(const std::int64_t* limbs, std::size_t count, char* out) {
  while (limbs[count - 1] == 0) --count;
  const std::size_t size = lane_digits * (count - 1) + Digits_Of(limbs[count - 1]);
  for (std::size_t end = size; end > 0; limbs += lane_count) {
    const std::size_t part = end < lane_count * lane_digits ? end : lane_count * lane_digits;
    end -= part;
    Write_Eight<lane_digits>(out + end, part, _mm512_loadu_si512(limbs));
  }
  return size;
}

// Adds the products of b[from] to b[to - 1] with the limbs of `a` that fall on the columns from
// `k` on.
inline void Add_Products(__m512i (&low)[2], __m512i (&high)[2], const std::uint64_t* a,
                         const std::uint64_t* b, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i) {
    const __m512i factor = _mm512_set1_epi64(static_cast<std::int64_t>(b[i]));
    const __m512i first = _mm512_loadu_si512(a - i);
    const __m512i second = _mm512_loadu_si512(a - i + lane_count);
    low[0] = _mm512_madd52lo_epu64(low[0], first, factor);
    high[0] = _mm512_madd52hi_epu64(high[0], first, factor);
    low[1] = _mm512_madd52lo_epu64(low[1], second, factor);
    high[1] = _mm512_madd52hi_epu64(high[1], second, factor);
  }
}

// All columns of the product; `a` has columns_at_once zeros before it and after it.
inline void Multiply_Columns(std::int64_t* out, const std::uint64_t* a, std::size_t a_count,
                             const std::uint64_t* b, std::size_t b_count) {
  Carry<lane_digits> carry;
  const std::size_t count = a_count + b_count;
  for (std::size_t k = 0; k < count; k += columns_at_once) {
    const std::size_t from = k < a_count ? 0 : k - a_count + 1;
    const std::size_t to = k + columns_at_once < b_count ? k + columns_at_once : b_count;
    __m512i low[2] = {};
    __m512i high[2] = {};
    Add_Products(low, high, a + k, b, from, to);
    _mm512_storeu_si512(out + k, carry.take(low[0], high[0]));
    _mm512_storeu_si512(out + k + lane_count, carry.take(low[1], high[1]));
  }
  if (!carry.is_settled()) Settle(out, count, Power_Of_Ten(lane_digits));
}

// The words of scratch that a product needs.
constexpr std::size_t Short_Scratch(std::size_t a_size, std::size_t b_size) {
  const std::size_t limbs = Limbs_Of(a_size) + Limbs_Of(b_size);
  return 2 * limbs + 6 * columns_at_once;
}

// Adds the products of limb i of `b` with those of `a`.
template <std::size_t i>
inline void Add_Shifted(__m512i (&low)[2], __m512i (&high)[2], __m512i a, __m512i b) {
  const __m512i zero = _mm512_setzero_si512();
  const __m512i factor = _mm512_permutexvar_epi64(_mm512_set1_epi64(i), b);
  const __m512i first = i == 0 ? a : _mm512_alignr_epi64(a, zero, (lane_count - i) % lane_count);
  low[0] = _mm512_madd52lo_epu64(low[0], first, factor);
  high[0] = _mm512_madd52hi_epu64(high[0], first, factor);
  if constexpr (i > 0) {
    const __m512i second = _mm512_alignr_epi64(zero, a, lane_count - i);
    low[1] = _mm512_madd52lo_epu64(low[1], second, factor);
    high[1] = _mm512_madd52hi_epu64(high[1], second, factor);
  }
}

// A product of operands that fill a register each at most, which they don't leave before all
// columns are summed up: what has just been stored in parts can't be loaded across them without a
// wait.
inline std::size_t Multiply_Registers(const char* a_text, std::size_t a_size, const char* b_text,
                                      std::size_t b_size, char* out) {
  __mmask64 bad = 0;
  const __m512i a = Read_Eight<lane_digits>(a_text, a_size, bad);
  const __m512i b = b_text == nullptr ? a : Read_Eight<lane_digits>(b_text, b_size, bad);
  if (bad != 0) return 0;
  // Two sums for each half of the columns, as each waits for its last addition.
  __m512i low[2] = {};
  __m512i high[2] = {};
  __m512i other_low[2] = {};
  __m512i other_high[2] = {};
  Add_Shifted<0>(low, high, a, b);
  Add_Shifted<1>(other_low, other_high, a, b);
  Add_Shifted<2>(low, high, a, b);
  Add_Shifted<3>(other_low, other_high, a, b);
  Add_Shifted<4>(low, high, a, b);
  Add_Shifted<5>(other_low, other_high, a, b);
  Add_Shifted<6>(low, high, a, b);
  Add_Shifted<7>(other_low, other_high, a, b);
  alignas(64) std::int64_t product[columns_at_once];
  Carry<lane_digits> carry;
  for (std::size_t k = 0; k < 2; ++k) {
    _mm512_store_si512(product + k * lane_count,
                       carry.take(_mm512_add_epi64(low[k], other_low[k]),
                                  _mm512_add_epi64(high[k], other_high[k])));
  }
  if (!carry.is_settled()) Settle(product, columns_at_once, Power_Of_Ten(lane_digits));
  return Write_Lanes(product, Limbs_Of(a_size) + Limbs_Of(b_size), out);
}

// A square has no second text.
inline std::size_t Multiply_In_Lanes(const char* a_text, std::size_t a_size, const char* b_text,
                                     std::size_t b_size, char* out, void* scratch) {
  const std::size_t a_count = Limbs_Of(a_size);
  const std::size_t b_count = Limbs_Of(b_size);
  if (a_count <= lane_count) return Multiply_Registers(a_text, a_size, b_text, b_size, out);
  const __m512i zero = _mm512_setzero_si512();
  auto* const before = static_cast<std::uint64_t*>(scratch);
  std::uint64_t* const a = before + columns_at_once;
  std::uint64_t* const a_end = a + Rounded_Up(a_count, lane_count);
  for (std::size_t i = 0; i < columns_at_once; i += lane_count) {
    _mm512_storeu_si512(before + i, zero);
    _mm512_storeu_si512(a_end + i, zero);
  }
  const std::uint64_t* b = a;
  std::uint64_t* rest = a_end + columns_at_once;
  if (!Read_Lanes(a_text, a_size, a)) return 0;
  if (b_text != nullptr) {
    if (!Read_Lanes(b_text, b_size, rest)) return 0;
    b = rest;
    rest += Rounded_Up(b_count, lane_count);
  }
  auto* const product = reinterpret_cast<std::int64_t*>(rest);
  Multiply_Columns(product, a, a_count, b, b_count);
  return Write_Lanes(product, a_count + b_count, out);
}

}  // namespace
}  // namespace quorvex::native
