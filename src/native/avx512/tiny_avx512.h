// Products of two numbers of up to sixteen digits, each in one half of a register. For the
// inclusion of the AVX-512 kernels alone.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "native/generic/digit_words.h"

namespace quorvex::native {
namespace {

inline constexpr std::uint64_t ten_to_16 = ten_to_8 * ten_to_8;

inline __m256i Byte_Places() {
  return _mm256_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
                          21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31);
}

inline __m256i Two_Halves(__m128i low, __m128i high) {
  return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
}

// The values of the digits of both texts, each at the end of its half, zeros before them.
inline __m256i Read_Halves(const char* a, std::size_t a_size, const char* b, std::size_t b_size) {
  const auto first = [](std::size_t count) { return static_cast<__mmask16>((1U << count) - 1); };
  const auto last = [](std::size_t count) { return 0xFFFFU << (16 - count) & 0xFFFFU; };
  const auto offset = [](std::size_t count) {
    return _mm_set1_epi8(static_cast<char>(static_cast<int>(count) - 16));
  };
  const __m256i text =
      Two_Halves(_mm_maskz_loadu_epi8(first(a_size), a), _mm_maskz_loadu_epi8(first(b_size), b));
  const __m256i places = _mm256_add_epi8(Byte_Places(), Two_Halves(offset(a_size), offset(b_size)));
  const __mmask32 used = last(a_size) | last(b_size) << 16U;
  return _mm256_maskz_sub_epi8(used, _mm256_permutexvar_epi8(places, text), _mm256_set1_epi8('0'));
}

// One number in the low word of each half.
inline __m256i Join_Halves(__m256i values) {
  const __m256i pairs = _mm256_maddubs_epi16(values, _mm256_set1_epi16(0x010A));
  const __m256i fours = _mm256_madd_epi16(pairs, _mm256_set1_epi32(0x00010064));
  const __m256i eights =
      _mm256_madd_epi16(_mm256_packus_epi32(fours, fours), _mm256_set1_epi32(0x00012710));
  return _mm256_add_epi64(_mm256_mul_epu32(eights, _mm256_set1_epi64x(ten_to_8)),
                          _mm256_srli_epi64(eights, 32));
}

// The quotient of a product below 10^32 by 10^16: at most two less than what its high bits times
// 2^117 / 10^16 tell.
inline std::uint64_t Divide_Product(Wide product, std::uint64_t& rest) {
  constexpr auto reciprocal = static_cast<std::uint64_t>((Wide{1} << 117U) / ten_to_16);
  const auto high = static_cast<std::uint64_t>(product >> 53U);
  auto quotient = static_cast<std::uint64_t>((Wide{high} * reciprocal) >> 64U);
  rest = static_cast<std::uint64_t>(product) - quotient * ten_to_16;
  for (int i = 0; i < 2; ++i) {
    const bool is_short = rest >= ten_to_16;
    quotient += is_short ? 1 : 0;
    rest -= is_short ? ten_to_16 : 0;
  }
  return quotient;
}

// The digits of four numbers below 10^8, as Part_Eights has them.
inline __m256i Part_Four_Eights(__m256i eights) {
  const __m256i high =
      _mm256_madd52hi_epu64(_mm256_setzero_si256(), eights, _mm256_set1_epi64x(450'359'962'738));
  const __m256i low = _mm256_sub_epi64(eights, _mm256_mul_epu32(high, _mm256_set1_epi64x(10'000)));
  const __m256i fours = _mm256_or_si256(high, _mm256_slli_epi64(low, 32));
  const __m256i hundreds = _mm256_srli_epi16(_mm256_mulhi_epu16(fours, _mm256_set1_epi16(5243)), 3);
  const __m256i units =
      _mm256_sub_epi16(fours, _mm256_mullo_epi16(hundreds, _mm256_set1_epi16(100)));
  const __m256i pairs = _mm256_or_si256(hundreds, _mm256_slli_epi32(units, 16));
  const __m256i tens = _mm256_mulhi_epu16(pairs, _mm256_set1_epi16(6554));
  const __m256i ones = _mm256_sub_epi16(pairs, _mm256_mullo_epi16(tens, _mm256_set1_epi16(10)));
  return _mm256_or_si256(tens, _mm256_slli_epi16(ones, 8));
}

inline std::size_t Multiply_Tiny(const char* a, std::size_t a_size, const char* b,
                                 std::size_t b_size, char* out) {
  const __m256i values = Read_Halves(a, a_size, b, b_size);
  if (_mm256_cmpgt_epu8_mask(values, _mm256_set1_epi8(9)) != 0) return 0;
  const __m256i numbers = Join_Halves(values);
  const auto first = static_cast<std::uint64_t>(_mm256_extract_epi64(numbers, 0));
  const auto second = static_cast<std::uint64_t>(_mm256_extract_epi64(numbers, 2));

  std::uint64_t low = 0;
  const std::uint64_t high = Divide_Product(Wide{first} * second, low);
  const auto word = [](std::uint64_t number) { return static_cast<long long>(number); };
  const __m256i digits = Part_Four_Eights(_mm256_setr_epi64x(
      word(high / ten_to_8), word(high % ten_to_8), word(low / ten_to_8), word(low % ten_to_8)));
  const auto leading =
      static_cast<unsigned>(std::countr_zero(std::uint32_t{_mm256_test_epi8_mask(digits, digits)}));
  const __m256i places =
      _mm256_add_epi8(Byte_Places(), _mm256_set1_epi8(static_cast<char>(leading)));
  const __m256i text =
      _mm256_or_si256(_mm256_permutexvar_epi8(places, digits), _mm256_set1_epi8('0'));
  _mm256_mask_storeu_epi8(out, ~std::uint32_t{0} >> leading, text);
  return 32 - leading;
}

}  // namespace
}  // namespace quorvex::native
