// Text to balanced points for waves, and from the coefficients of a product to groups of digits,
// eight groups at a time. For the inclusion of the AVX-512 kernels alone.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

#include "native/avx512/carry_avx512.h"
#include "native/avx512/digit_lanes_avx512.h"
#include "native/avx512/vector_avx512.h"
#include "native/generic/grain.h"
// The vectors come first.
#include "native/generic/wave_fold.h"

namespace quorvex::native {
namespace {

// What is above half of the base is taken from the next point: returns the lanes that carry.
inline __mmask8 Balance(__m512i& point, __m512i base) {
  const __mmask8 above = _mm512_cmpgt_epi64_mask(point, _mm512_srli_epi64(base, 1));
  point = _mm512_mask_sub_epi64(point, above, point, base);
  return above;
}

// Fills all of Grains_For, rounded up to a multiple of sixteen, with zeros behind the last.
template <std::size_t D>
bool Read_Grains_Of(const char* text, std::size_t size, double* points) {
  constexpr std::int64_t base_value = Power_Of_Ten(D / 2);
  const __m512i base = _mm512_set1_epi64(base_value);
  // 2^52 / base, rounded up, is exact for groups below base^2.
  const __m512i reciprocal = _mm512_set1_epi64((std::int64_t{1} << 52U) / base_value + 1);
  const __m512i one = _mm512_set1_epi64(1);
  const __m512i first = _mm512_set_epi64(11, 3, 10, 2, 9, 1, 8, 0);
  const __m512i second = _mm512_set_epi64(15, 7, 14, 6, 13, 5, 12, 4);
  __mmask64 bad = 0;
  unsigned carry = 0;
  std::size_t end = size;
  do {
    const __m512i groups = Read_Eight<D>(text, end, bad);
    __m512i high = _mm512_madd52hi_epu64(_mm512_setzero_si512(), groups, reciprocal);
    __m512i low = _mm512_sub_epi64(groups, _mm512_mul_epu32(high, base));
    const __mmask8 to_high = Balance(low, base);
    high = _mm512_mask_add_epi64(high, to_high, high, one);
    const unsigned next = Balance(high, base);
    low = _mm512_mask_add_epi64(low, static_cast<__mmask8>(next << 1U | carry), low, one);
    carry = next >> 7U;
    _mm512_store_pd(points, _mm512_cvtepi64_pd(_mm512_permutex2var_epi64(low, first, high)));
    _mm512_store_pd(points + 8, _mm512_cvtepi64_pd(_mm512_permutex2var_epi64(low, second, high)));
    points += 16;
    end -= end < 8 * D ? end : 8 * D;
  } while (end > 0);
  if ((size + D - 1) / D % 8 == 0) {
    _mm512_store_pd(points, _mm512_setr_pd(carry, 0, 0, 0, 0, 0, 0, 0));
    _mm512_store_pd(points + 8, _mm512_setzero_pd());
  }
  return bad == 0;
}

inline bool Read_Grain_Eights(const char* text, std::size_t count, const Grain& grain,
                              double* points) {
  return grain.digits == coarse_grain.digits ? Read_Grains_Of<10>(text, count, points)
                                             : Read_Grains_Of<8>(text, count, points);
}

/// Takes columns of either sign, least first, below 2^63 in size and so that their quotients by the
/// base 10^D are below 2^32. Digits are left from -1 to the base, and hardly ever at either end;
/// whether one is, is told by `is_settled`.
///
/// The quotients come from doubles and miss by less than 1 before they are rounded down, so that
/// rests are from -base to twice the base at the utmost, hence digits before the last step.
template <std::size_t D>
class Signed_Carry {
 public:
  __m512i take(__m512i column) {
    __m512i sum = part(column, first_);
    // Up to 2^32 may have been added, forty times the smaller base.
    if constexpr (D == 8) sum = part(sum, second_);
    const unsigned above = _mm512_cmpge_epi64_mask(sum, base());
    const unsigned below = _mm512_cmplt_epi64_mask(sum, _mm512_setzero_si512());
    sum = _mm512_mask_sub_epi64(sum, static_cast<__mmask8>(above), sum, base());
    sum = _mm512_mask_add_epi64(sum, static_cast<__mmask8>(below), sum, base());
    const __m512i one = _mm512_set1_epi64(1);
    above_ = above << 1U | above_ >> 8U;
    below_ = below << 1U | below_ >> 8U;
    sum = _mm512_mask_add_epi64(sum, static_cast<__mmask8>(above_), sum, one);
    sum = _mm512_mask_sub_epi64(sum, static_cast<__mmask8>(below_), sum, one);
    settled_ = static_cast<__mmask8>(settled_ & _mm512_cmplt_epu64_mask(sum, base()));
    return sum;
  }

  bool is_settled() const { return settled_ == 0xFF; }

 private:
  static __m512i base() { return _mm512_set1_epi64(Power_Of_Ten(D)); }

  // The rests of columns by the base, with what is carried from those below.
  static __m512i part(__m512i column, __m512i& before) {
    const __m512d reciprocal = _mm512_set1_pd(1.0 / static_cast<double>(Power_Of_Ten(D)));
    const __m512i quotient =
        _mm512_cvt_roundpd_epi64(_mm512_mul_pd(_mm512_cvtepi64_pd(column), reciprocal),
                                 _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC);
    const __m512i rest = _mm512_sub_epi64(column, _mm512_mullo_epi64(quotient, base()));
    const __m512i moved = _mm512_alignr_epi64(quotient, before, 7);
    before = quotient;
    return _mm512_add_epi64(rest, moved);
  }

  __m512i first_ = _mm512_setzero_si512();
  __m512i second_ = _mm512_setzero_si512();
  unsigned above_ = 0;
  unsigned below_ = 0;
  __mmask8 settled_ = 0xFF;
};

// Two coefficients, which `get` tells eight at a time, make a column of a group.
template <std::size_t D, typename Get>
void Carry_Grains_Of(const Get& get, std::size_t count, double* groups) {
  const __m512i base = _mm512_set1_epi64(Power_Of_Ten(D / 2));
  const __m512i even = _mm512_set_epi64(14, 12, 10, 8, 6, 4, 2, 0);
  const __m512i odd = _mm512_set_epi64(15, 13, 11, 9, 7, 5, 3, 1);
  Signed_Carry<D> carry;
  for (std::size_t i = 0; i < count; i += 8) {
    const __m512d left = get(2 * i).lane;
    const __m512d right = get(2 * i + 8).lane;
    const __m512i low = _mm512_cvtpd_epi64(_mm512_permutex2var_pd(left, even, right));
    const __m512i high = _mm512_cvtpd_epi64(_mm512_permutex2var_pd(left, odd, right));
    const __m512i column = _mm512_add_epi64(low, _mm512_mullo_epi64(high, base));
    _mm512_store_pd(groups + i, _mm512_cvtepi64_pd(carry.take(column)));
  }
  if (!carry.is_settled()) Settle(groups, count, static_cast<double>(Power_Of_Ten(D)));
}

// Coefficients of one piece are taken where they stand.
inline void Carry_Wave_Eights(const double* x, const Wave_Length& length, const Grain& grain,
                              std::size_t count, double* groups) {
  const auto carry = [&grain, count, groups](const auto& get) {
    if (grain.digits == coarse_grain.digits) {
      Carry_Grains_Of<coarse_grain.digits>(get, count, groups);
    } else {
      Carry_Grains_Of<fine_grain.digits>(get, count, groups);
    }
  };
  if (length.units == 4) {
    const Rounded_Piece piece(x, Pieces_Of(length).piece[0]);
    carry([&piece](std::size_t k) { return piece.get(k); });
  } else {
    Unfold_Waves(x, length, groups);
    carry([groups](std::size_t k) { return Lanes::Load(groups + k); });
  }
}

}  // namespace
}  // namespace quorvex::native
