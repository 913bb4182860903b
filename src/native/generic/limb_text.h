// Limbs and their text, sixteen digits at a time: in the vector registers that every x86-64 has, in
// general registers elsewhere.
#pragma once

#include <cstdint>

#include "native/generic/digit_words.h"

#if defined(__x86_64__)
#include <emmintrin.h>
#endif

namespace quorvex::native {

#if defined(__x86_64__)

/// Reads numbers of sixteen digits, and notes whether characters were some.
class Sixteen_Reader {
 public:
  std::uint64_t read(const char* text) {
    const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    const __m128i values = _mm_sub_epi8(characters, _mm_set1_epi8('0'));
    most_ = _mm_max_epu8(most_, values);
    // Two digits times 1 + 10 * 2^8 have their number in the high byte.
    const __m128i pairs = _mm_srli_epi16(_mm_mullo_epi16(values, _mm_set1_epi16(2561)), 8);
    const __m128i fours = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00010064));
    const __m128i eights =
        _mm_madd_epi16(_mm_packs_epi32(fours, fours), _mm_set1_epi32(0x00012710));
    const auto both = static_cast<std::uint64_t>(_mm_cvtsi128_si64(eights));
    return (both & 0xFFFFFFFFU) * ten_to_8 + (both >> 32U);
  }

  bool has_only_digits() const {
    const __m128i too_large = _mm_subs_epu8(most_, _mm_set1_epi8(9));
    return _mm_movemask_epi8(_mm_cmpeq_epi8(too_large, _mm_setzero_si128())) == 0xFFFF;
  }

 private:
  __m128i most_ = _mm_setzero_si128();
};

/// Writes sixteen digits of a number that has no more.
///
/// 2^45 / 10^4, 2^19 / 100 and 2^16 / 10, rounded up, are exact for the numbers that they meet.
/// Both halves of the lane of a number n of four digits get its hundreds h, for h + 2^16 (n - 100
/// h) is pairs; and each pair p with its tens t becomes t + 2^8 (p - 10 t).
static inline void Write_Sixteen(char* out, std::uint64_t number) {
  const std::uint64_t high = number / ten_to_8;
  const __m128i eights =
      _mm_unpacklo_epi64(_mm_cvtsi64_si128(static_cast<long long>(high)),
                         _mm_cvtsi64_si128(static_cast<long long>(number - high * ten_to_8)));
  const __m128i first =
      _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi32(static_cast<int>(3'518'437'209U))), 45);
  const __m128i second = _mm_sub_epi64(eights, _mm_mul_epu32(first, _mm_set1_epi32(10'000)));
  const __m128i fours = _mm_or_si128(first, _mm_slli_epi64(second, 32));
  const __m128i above = _mm_slli_epi32(fours, 16);
  const __m128i both = _mm_or_si128(fours, above);
  const __m128i hundreds = _mm_srli_epi16(_mm_mulhi_epu16(both, _mm_set1_epi16(5243)), 3);
  const __m128i factors = _mm_set1_epi32(static_cast<int>(0xFF9C'0001U));
  const __m128i pairs = _mm_add_epi16(above, _mm_mullo_epi16(hundreds, factors));
  const __m128i tens = _mm_mulhi_epu16(pairs, _mm_set1_epi16(6554));
  const __m128i digits =
      _mm_sub_epi16(_mm_slli_epi16(pairs, 8), _mm_mullo_epi16(tens, _mm_set1_epi16(2559)));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_or_si128(digits, _mm_set1_epi8('0')));
}

#else

/// Reads numbers of sixteen digits, and notes whether characters were some.
class Sixteen_Reader {
 public:
  std::uint64_t read(const char* text) {
    const std::uint64_t head = Load_Word(text);
    const std::uint64_t tail = Load_Word(text + 8);
    bad_ |= Non_Digits(head) | Non_Digits(tail);
    return Join_Digits(head) * ten_to_8 + Join_Digits(tail);
  }

  bool has_only_digits() const { return bad_ == 0; }

 private:
  std::uint64_t bad_ = 0;
};

/// Writes sixteen digits of a number that has no more.
static inline void Write_Sixteen(char* out, std::uint64_t number) {
  const std::uint64_t high = number / ten_to_8;
  Store_Word(out, Part_Digits(high));
  Store_Word(out + 8, Part_Digits(number - high * ten_to_8));
}

#endif

/// Reads limbs of eighteen digits, and notes whether characters were some.
class Limb_Reader {
 public:
  std::uint64_t read(const char* text) {
    const std::uint64_t head = sixteen_.read(text);
    return head * 100 + Read_Two(text + 16, bad_);
  }

  bool has_only_digits() const { return bad_ == 0 && sixteen_.has_only_digits(); }

 private:
  Sixteen_Reader sixteen_;
  std::uint64_t bad_ = 0;
};

/// Writes the eighteen digits of a limb.
static inline void Write_Limb(char* out, std::uint64_t limb) {
  const std::uint64_t head = limb / 100;
  Write_Sixteen(out, head);
  Write_Two(out + 16, limb - head * 100);
}

}  // namespace quorvex::native
