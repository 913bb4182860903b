// Decimal text to balanced points in doubles, eight at a time, and groups of digits back to text,
// four at a time. For the inclusion of the AVX2 kernels alone.
//
// A group of D digits is two points. A permutation of bytes puts each point at the end of eight
// bytes, zeros before it, in which neighbours are joined two by two.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "native/generic/grain.h"

namespace quorvex::native {
namespace {

inline constexpr std::size_t register_bytes = 16;

// For each byte of two points the character of the sixteen that end with their group; bytes with
// the high bit set become zero.
template <std::size_t D>
struct Point_Places {
  alignas(16) std::uint8_t place[register_bytes] = {};

  constexpr Point_Places() {
    constexpr std::size_t digits = D / 2;
    for (std::size_t k = 0; k < 8; ++k) {
      const bool is_used = k >= 8 - digits;
      place[k] = static_cast<std::uint8_t>(is_used ? 8 + k : 0x80);
      place[8 + k] = static_cast<std::uint8_t>(is_used ? 8 + k - digits : 0x80);
    }
  }
};

template <std::size_t D>
constexpr Point_Places<D> point_places = {};

// Reads points and balances them: what is above half of the base is taken from the next point.
template <std::size_t D>
class Point_Reader {
 public:
  static constexpr std::size_t digits = 4 * D;

  /// So many characters before those of eight points may be read too.
  static constexpr std::size_t characters = digits + register_bytes - D;

  explicit Point_Reader(double* points) : points_(points) {}

  void put_text(const char* end) {
    const __m128i places = usual_places();
    const auto group = [&](std::size_t k) { return place(load(end - k * D), places); };
    put_groups(group(0), group(1), group(2), group(3));
  }

  /// The first `size` characters of a text, which has sixteen at least: zeros stand before them.
  void put_start(const char* text, std::size_t size) {
    const auto group = [text, size](std::size_t k) {
      if (size >= k * D + register_bytes) return place(load(text + size - k * D), usual_places());
      if (size <= k * D) return _mm_setzero_si128();
      const auto missing = static_cast<char>(k * D + register_bytes - size);
      return place(load(text + register_bytes),
                   _mm_subs_epi8(usual_places(), _mm_set1_epi8(missing)));
    };
    put_groups(group(0), group(1), group(2), group(3));
  }

  void put(__m256i points) {
    constexpr int base = [] {
      int power = 1;
      for (std::size_t i = 0; i < D / 2; ++i) power *= 10;
      return power;
    }();
    const __m256i above = _mm256_cmpgt_epi32(points, _mm256_set1_epi32(base / 2));
    const __m256i turned =
        _mm256_permutevar8x32_epi32(above, _mm256_setr_epi32(7, 0, 1, 2, 3, 4, 5, 6));
    const __m256i carried = _mm256_blend_epi32(turned, before_, 1);
    before_ = turned;
    const __m256i balanced = _mm256_sub_epi32(
        _mm256_sub_epi32(points, _mm256_and_si256(above, _mm256_set1_epi32(base))), carried);
    _mm256_store_pd(points_, _mm256_cvtepi32_pd(_mm256_castsi256_si128(balanced)));
    _mm256_store_pd(points_ + 4, _mm256_cvtepi32_pd(_mm256_extracti128_si256(balanced, 1)));
    points_ += 8;
  }

  const double* end() const { return points_; }

  bool has_only_digits() const {
    const __m256i too_large = _mm256_subs_epu8(most_, _mm256_set1_epi8(9));
    return _mm256_testz_si256(too_large, too_large) != 0;
  }

 private:
  static __m128i load(const char* end) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(end - register_bytes));
  }

  static __m128i usual_places() {
    return _mm_load_si128(reinterpret_cast<const __m128i*>(point_places<D>.place));
  }

  // The digits' values of one group in their places.
  static __m128i place(__m128i text, __m128i places) {
    return _mm_shuffle_epi8(_mm_sub_epi8(text, _mm_set1_epi8('0')), places);
  }

  // Each group as two points, the first group last in the text.
  void put_groups(__m128i group0, __m128i group1, __m128i group2, __m128i group3) {
    const __m256i low = join(group0, group2);
    const __m256i high = join(group1, group3);
    const __m256 first = _mm256_castsi256_ps(low);
    const __m256 second = _mm256_castsi256_ps(high);
    const __m256i heads = _mm256_castps_si256(_mm256_shuffle_ps(first, second, 0x88));
    const __m256i tails = _mm256_castps_si256(_mm256_shuffle_ps(first, second, 0xDD));
    put(_mm256_add_epi32(_mm256_madd_epi16(heads, _mm256_set1_epi32(10'000)), tails));
  }

  // Each point as two numbers, of its last four digits and those before.
  __m256i join(__m128i low, __m128i high) {
    const __m256i values = _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
    most_ = _mm256_max_epu8(most_, values);
    const __m256i pairs = _mm256_maddubs_epi16(values, _mm256_set1_epi16(0x010A));
    return _mm256_madd_epi16(pairs, _mm256_set1_epi32(0x00010064));
  }

  double* points_;
  __m256i before_ = _mm256_setzero_si256();
  __m256i most_ = _mm256_setzero_si256();
};

/// Fills so many points, a multiple of eight and enough for the digits and what balancing carries,
/// with zeros behind the last. False if a character is no digit.
template <std::size_t D>
bool Read_Balanced(const char* text, std::size_t size, double* points, std::size_t count) {
  using Reader = Point_Reader<D>;
  char few[register_bytes];
  if (size < register_bytes) {
    std::memset(few, '0', sizeof few);
    std::memcpy(few + register_bytes - size, text, size);
    text = few;
    size = register_bytes;
  }
  Reader reader(points);
  for (; size >= Reader::characters; size -= Reader::digits) reader.put_text(text + size);
  for (; size > Reader::digits; size -= Reader::digits) reader.put_start(text, size);
  reader.put_start(text, size);
  while (reader.end() != points + count) reader.put(_mm256_setzero_si256());
  return reader.has_only_digits();
}

// Whole numbers below 10^15 over a power of ten. The little that is added makes up for the rounding
// of the reciprocal, and is less than the least part of a quotient.
inline __m256d Divide_Whole(__m256d numbers, double power) {
  const __m256d quotient =
      _mm256_fmadd_pd(numbers, _mm256_set1_pd(1 / power), _mm256_set1_pd(1 / (8 * power)));
  return _mm256_floor_pd(quotient);
}

inline __m256d Rest_Of(__m256d numbers, __m256d quotients, double power) {
  return _mm256_fnmadd_pd(quotients, _mm256_set1_pd(power), numbers);
}

// Numbers below 2^52 as integers, moved up by so many bits; at least twelve, which move out what
// tells that they are doubles.
template <int bits>
inline __m256i Integers_Moved_Up(__m256d numbers) {
  static_assert(bits >= 12);
  return _mm256_slli_epi64(_mm256_castpd_si256(_mm256_add_pd(numbers, _mm256_set1_pd(0x1p52))),
                           bits);
}

// Numbers p of two digits in any lanes of sixteen bits as two bytes: t + 256 (p - 10 t), t being
// the tens. 2^16 / 10, rounded up, is exact for them.
inline __m256i Part_Pairs(__m256i pairs) {
  const __m256i tens = _mm256_mulhi_epu16(pairs, _mm256_set1_epi16(6554));
  return _mm256_sub_epi16(_mm256_slli_epi16(pairs, 8),
                          _mm256_mullo_epi16(tens, _mm256_set1_epi16(2559)));
}

// Numbers n of four digits in any lanes of 32 bits as four bytes: both halves of a lane get the
// hundreds h, h + 2^16 (n - 100 h) is pairs. 2^19 / 100, rounded up, is exact for them. (Written
// so, since compilers turn products with 100 alone into five steps.)
inline __m256i Part_Fours(__m256i fours) {
  const __m256i above = _mm256_slli_epi32(fours, 16);
  const __m256i both = _mm256_or_si256(fours, above);
  const __m256i hundreds = _mm256_srli_epi16(_mm256_mulhi_epu16(both, _mm256_set1_epi16(5243)), 3);
  const __m256i factors = _mm256_set1_epi32(static_cast<int>(0xFF9C'0001U));
  return Part_Pairs(_mm256_add_epi16(above, _mm256_mullo_epi16(hundreds, factors)));
}

// The eight digits of numbers below 10^8 as bytes, the first lowest.
inline __m256i Part_Eights(__m256d eights) {
  const __m256d magic = _mm256_set1_pd(0x1p52);
  const __m256d high = Divide_Whole(eights, 1e4);
  const __m256d low = Rest_Of(eights, high, 1e4);
  const __m256d both = _mm256_fmadd_pd(low, _mm256_set1_pd(0x1p32), _mm256_add_pd(high, magic));
  return Part_Fours(_mm256_castpd_si256(_mm256_xor_pd(both, magic)));
}

// The last of eight digits of numbers that have no more than so many.
template <std::size_t digits>
inline __m256i Part_Heads(__m256d heads) {
  if constexpr (digits == 0) return _mm256_setzero_si256();
  if constexpr (digits == 2) return Part_Pairs(Integers_Moved_Up<48>(heads));
  if constexpr (digits == 4) return Part_Fours(Integers_Moved_Up<32>(heads));
  return Part_Eights(heads);
}

// The characters of four groups, each at the front of a half of a register: groups 0 and 2, 1
// and 3.
struct Four_Texts {
  __m256i even;
  __m256i odd;
};

template <std::size_t D>
inline Four_Texts Characters_Of(__m256d groups) {
  const __m256d high = Divide_Whole(groups, 1e8);
  const __m256i heads = Part_Heads<D - 8>(high);
  const __m256i tails = Part_Eights(Rest_Of(groups, high, 1e8));
  const __m256i forward = _mm256_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0,
                                           1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
  const __m256i places = _mm256_add_epi8(forward, _mm256_set1_epi8(16 - D));
  const auto text = [places](__m256i both) {
    return _mm256_shuffle_epi8(_mm256_or_si256(both, _mm256_set1_epi8('0')), places);
  };
  return {text(_mm256_unpacklo_epi64(heads, tails)), text(_mm256_unpackhi_epi64(heads, tails))};
}

inline void Store_Text(char* out, __m128i characters) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), characters);
}

// Writes four groups, the last one first, and up to a register of anything behind them.
template <std::size_t D>
inline void Write_Four_And_More(char* out, __m256d groups) {
  const auto [even, odd] = Characters_Of<D>(groups);
  Store_Text(out, _mm256_extracti128_si256(odd, 1));
  Store_Text(out + D, _mm256_extracti128_si256(even, 1));
  Store_Text(out + 2 * D, _mm256_castsi256_si128(odd));
  Store_Text(out + 3 * D, _mm256_castsi256_si128(even));
}

// The same with nothing behind.
template <std::size_t D>
inline void Write_Last_Four(char* out, __m256d groups) {
  static_assert(D >= 8 && D < register_bytes);
  const auto [even, odd] = Characters_Of<D>(groups);
  Store_Text(out, _mm256_extracti128_si256(odd, 1));
  Store_Text(out + D, _mm256_extracti128_si256(even, 1));
  Store_Text(out + 2 * D, _mm256_castsi256_si128(odd));
  const __m128i last = _mm256_castsi256_si128(even);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 3 * D), last);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 4 * D - 8), _mm_srli_si128(last, D - 8));
}

/// Writes a number, which isn't zero, of groups of D digits without leading zeros, and returns how
/// many digits there are. Nothing is written behind them. Whole registers of groups are read.
template <std::size_t D>
std::size_t Write_Groups_Of(const double* groups, std::size_t count, char* out) {
  constexpr std::size_t four = 4 * D;
  while (groups[count - 1] == 0) --count;
  std::size_t left = (count - 1) / 4 * 4;
  char some[four + four];
  Write_Four_And_More<D>(some, _mm256_load_pd(groups + left));
  const char* start = some + (3 - (count - 1) % 4) * D;
  const __m128i top = _mm_loadu_si128(reinterpret_cast<const __m128i*>(start));
  const int zeros = _mm_movemask_epi8(_mm_cmpeq_epi8(top, _mm_set1_epi8('0')));
  start += std::countr_one(static_cast<unsigned>(zeros));
  const auto first = static_cast<std::size_t>(some + four - start);
  const std::size_t size = first + left * D;
  if (left == 0) {
    std::memcpy(out, start, first);
    return size;
  }
  // What is copied beyond is overwritten.
  std::memcpy(out, start, four);
  for (out += first; left > 4; left -= 4, out += four)
    Write_Four_And_More<D>(out, _mm256_load_pd(groups + left - 4));
  Write_Last_Four<D>(out, _mm256_load_pd(groups));
  return size;
}

}  // namespace
}  // namespace quorvex::native
