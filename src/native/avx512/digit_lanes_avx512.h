// Decimal text to and from eight numbers of up to fifteen digits in one register.
//
// A window of text holds four numbers of D digits each; a permutation of bytes gives each its
// sixteen bytes, in which neighbours are joined two by two until two numbers of eight digits are
// left, and the way back.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

namespace quorvex::native {
namespace {

template <std::size_t D>
struct Windows {
  static constexpr std::size_t digits = 4 * D;
  alignas(64) std::uint8_t to_lanes[64] = {};    ///< the character for each byte of four numbers
  alignas(64) std::uint8_t from_lanes[64] = {};  ///< the byte for each character of the window
  std::uint64_t used = 0;                        ///< the bytes that have a character

  constexpr Windows() {
    for (std::size_t number = 0; number < 4; ++number) {
      for (std::size_t k = 0; k < D; ++k) {
        const std::size_t character = digits - D * (number + 1) + k;
        const std::size_t byte = 16 * number + (16 - D) + k;
        to_lanes[byte] = static_cast<std::uint8_t>(character);
        used |= std::uint64_t{1} << byte;
        // Numbers 0 and 2 of a window stand in the first register, 1 and 3 in the second.
        const std::size_t from = 64 * (number % 2) + 16 * (number / 2) + 16 - D + k;
        from_lanes[character] = static_cast<std::uint8_t>(from);
      }
    }
  }
};

template <std::size_t D>
constexpr Windows<D> windows = {};

inline __mmask64 First_Bytes(std::size_t count) {
  return ~std::uint64_t{0} >> (64 - count);
}

// The digits' values of the window that ends at text + end; what would stand before the text is
// zero.
template <std::size_t D>
inline __m512i Read_Window(const char* text, std::size_t end, __mmask64& bad) {
  constexpr std::size_t size = Windows<D>::digits;
  __m512i places = _mm512_load_si512(windows<D>.to_lanes);
  __mmask64 used = windows<D>.used;
  __m512i characters;
  if (end >= size) {
    characters = _mm512_maskz_loadu_epi8(First_Bytes(size), text + end - size);
  } else if (end == 0) {
    return _mm512_setzero_si512();
  } else {
    const __m512i missing = _mm512_set1_epi8(static_cast<char>(size - end));
    characters = _mm512_maskz_loadu_epi8(First_Bytes(end), text);
    used = _mm512_mask_cmpge_epu8_mask(used, places, missing);
    places = _mm512_sub_epi8(places, missing);
  }
  const __m512i spread = _mm512_permutexvar_epi8(places, characters);
  const __m512i values = _mm512_maskz_sub_epi8(used, spread, _mm512_set1_epi8('0'));
  bad |= _mm512_cmpgt_epu8_mask(values, _mm512_set1_epi8(9));
  return values;
}

inline __m512i Join_To_Fours(__m512i values) {
  const __m512i pairs = _mm512_maddubs_epi16(values, _mm512_set1_epi16(0x010A));
  return _mm512_madd_epi16(pairs, _mm512_set1_epi32(0x00010064));
}

// Eight numbers, the last of the text first. `end` may be less than they need.
template <std::size_t D>
inline __m512i Read_Eight(const char* text, std::size_t end, __mmask64& bad) {
  constexpr std::size_t size = Windows<D>::digits;
  const __m512i low = Join_To_Fours(Read_Window<D>(text, end, bad));
  const __m512i high =
      end > size ? Join_To_Fours(Read_Window<D>(text, end - size, bad)) : _mm512_setzero_si512();
  const __m512i eights =
      _mm512_madd_epi16(_mm512_packus_epi32(low, high), _mm512_set1_epi32(0x00012710));
  const __m512i ordered =
      _mm512_permutexvar_epi64(_mm512_set_epi64(7, 5, 3, 1, 6, 4, 2, 0), eights);
  return _mm512_add_epi64(_mm512_mul_epu32(ordered, _mm512_set1_epi64(100'000'000)),
                          _mm512_srli_epi64(ordered, 32));
}

// Numbers p of two digits in any lanes of sixteen bits as two bytes: t + 256 (p - 10 t), t being
// the tens. 2^16 / 10, rounded up, is exact for them.
inline __m512i Part_Pairs(__m512i pairs) {
  const __m512i tens = _mm512_mulhi_epu16(pairs, _mm512_set1_epi16(6554));
  return _mm512_sub_epi16(_mm512_slli_epi16(pairs, 8),
                          _mm512_mullo_epi16(tens, _mm512_set1_epi16(2559)));
}

// The eight digits of numbers below 10^8 as bytes, the first lowest. Each reciprocal is exact for
// all numbers that it meets: 2^52 / 10^4 and 2^19 / 100, rounded up. Both halves of the lane of a
// number n of four digits get its hundreds h, for h + 2^16 (n - 100 h) is pairs.
inline __m512i Part_Eights(__m512i eights) {
  const __m512i high =
      _mm512_madd52hi_epu64(_mm512_setzero_si512(), eights, _mm512_set1_epi64(450'359'962'738));
  const __m512i low = _mm512_sub_epi64(eights, _mm512_mul_epu32(high, _mm512_set1_epi64(10'000)));
  const __m512i fours = _mm512_or_si512(high, _mm512_slli_epi64(low, 32));
  const __m512i above = _mm512_slli_epi32(fours, 16);
  const __m512i both = _mm512_or_si512(fours, above);
  const __m512i hundreds = _mm512_srli_epi16(_mm512_mulhi_epu16(both, _mm512_set1_epi16(5243)), 3);
  const __m512i factors = _mm512_set1_epi32(static_cast<int>(0xFF9C'0001U));
  return Part_Pairs(_mm512_add_epi16(above, _mm512_mullo_epi16(hundreds, factors)));
}

// Writes the last `count` characters of one window, at most all, to `out`.
template <std::size_t D>
inline void Write_Window(char* out, std::size_t count, __m512i even, __m512i odd) {
  constexpr std::size_t size = Windows<D>::digits;
  __m512i places = _mm512_load_si512(windows<D>.from_lanes);
  if (count < size) {
    alignas(64) static constexpr auto steps = [] {
      struct {
        std::uint8_t step[64];
      } all = {};
      for (std::size_t i = 0; i < 64; ++i) all.step[i] = static_cast<std::uint8_t>(i);
      return all;
    }();
    const __m512i shifted = _mm512_add_epi8(_mm512_load_si512(&steps),
                                            _mm512_set1_epi8(static_cast<char>(size - count)));
    places = _mm512_permutexvar_epi8(shifted, places);
  }
  _mm512_mask_storeu_epi8(out, First_Bytes(count), _mm512_permutex2var_epi8(even, places, odd));
}

// Characters of eight numbers, sixteen bytes each: numbers 0, 2, 4, 6 and 1, 3, 5, 7.
struct Eight_Texts {
  __m512i even;
  __m512i odd;
};

template <std::size_t D>
inline Eight_Texts Characters_Of(__m512i numbers) {
  const __m512i zeros = _mm512_set1_epi8('0');
  if constexpr (D == 8) {
    const __m512i digits = _mm512_or_si512(Part_Eights(numbers), zeros);
    return {_mm512_unpacklo_epi64(zeros, digits), _mm512_unpackhi_epi64(zeros, digits)};
  }
  // 2^78 / 10^8, rounded up, is exact for numbers below 2^51.
  const __m512i high =
      _mm512_srli_epi64(_mm512_madd52hi_epu64(_mm512_setzero_si512(), numbers,
                                              _mm512_set1_epi64(3'022'314'549'036'573)),
                        26);
  const __m512i low =
      _mm512_sub_epi64(numbers, _mm512_mul_epu32(high, _mm512_set1_epi64(100'000'000)));
  const __m512i first =
      _mm512_or_si512(D == 10 ? _mm512_slli_epi64(Part_Pairs(high), 48) : Part_Eights(high), zeros);
  const __m512i second = _mm512_or_si512(Part_Eights(low), zeros);
  return {_mm512_unpacklo_epi64(first, second), _mm512_unpackhi_epi64(first, second)};
}

// Writes the last `count` digits of eight numbers, the first number last, to `out`.
template <std::size_t D>
inline void Write_Eight(char* out, std::size_t count, __m512i numbers) {
  constexpr std::size_t size = Windows<D>::digits;
  const auto [even, odd] = Characters_Of<D>(numbers);
  if (count > size) {
    const __m512i even_high = _mm512_shuffle_i64x2(even, even, 0x0E);
    const __m512i odd_high = _mm512_shuffle_i64x2(odd, odd, 0x0E);
    Write_Window<D>(out, count - size, even_high, odd_high);
    out += count - size;
    count = size;
  }
  Write_Window<D>(out, count, even, odd);
}

// Writes all digits of eight numbers to `out`, and beyond them up to a line of anything.
template <std::size_t D>
inline void Write_Eight_And_More(char* out, __m512i numbers) {
  const auto [even, odd] = Characters_Of<D>(numbers);
  const __m512i even_high = _mm512_shuffle_i64x2(even, even, 0x0E);
  const __m512i odd_high = _mm512_shuffle_i64x2(odd, odd, 0x0E);
  const __m512i places = _mm512_load_si512(windows<D>.from_lanes);
  _mm512_storeu_si512(out, _mm512_permutex2var_epi8(even_high, places, odd_high));
  _mm512_storeu_si512(out + Windows<D>::digits, _mm512_permutex2var_epi8(even, places, odd));
}

}  // namespace
}  // namespace quorvex::native
