// From sums of columns to digits of the base 10^D, eight columns at a time.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

namespace quorvex::native {
namespace {

constexpr std::int64_t Power_Of_Ten(std::size_t exponent) {
  std::int64_t power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

/// Takes columns low + 2^52 high, least first, each below 2^62 * 10^D and 2^114. Three steps leave
/// carries of -1 and 1 at most, which hardly ever meet a digit that they carry through; whether
/// one does is told by `is_settled`.
///
/// The quotients come from doubles. The first, below 2^62, misses by less than 2^11, so the rest is
/// below 2^11 * 10^D in size; the second misses by 1 at most, being below 2^62 / 10^D * 2 and taken
/// from a sum that a double holds to within 2^10.
template <std::size_t D>
class Carry {
 public:
  __m512i take(__m512i low, __m512i high) {
    const __m512d value =
        _mm512_fmadd_pd(_mm512_cvtepu64_pd(high), _mm512_set1_pd(0x1p52), _mm512_cvtepu64_pd(low));
    const __m512i first = _mm512_cvtpd_epi64(_mm512_mul_pd(value, reciprocal()));
    const __m512i column = _mm512_add_epi64(low, _mm512_slli_epi64(high, 52));
    const __m512i sum = _mm512_add_epi64(without(column, first), shifted(first, first_));

    const __m512i second = _mm512_cvtpd_epi64(
        _mm512_roundscale_pd(_mm512_mul_pd(_mm512_cvtepi64_pd(sum), reciprocal()),
                             _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC));
    const __m512i near = _mm512_add_epi64(without(sum, second), shifted(second, second_));

    const __m512i third = overflow(near);
    const __m512i digits = _mm512_add_epi64(without(near, third), shifted(third, third_));
    settled_ = static_cast<__mmask8>(settled_ & _mm512_cmplt_epu64_mask(digits, base()));
    return digits;
  }

  /// False if a digit is left at -1 or at the base or above.
  bool is_settled() const { return settled_ == 0xFF; }

 private:
  static __m512i base() { return _mm512_set1_epi64(Power_Of_Ten(D)); }
  static __m512d reciprocal() { return _mm512_set1_pd(1.0 / static_cast<double>(Power_Of_Ten(D))); }

  static __m512i without(__m512i value, __m512i quotient) {
    return _mm512_sub_epi64(value, _mm512_mullo_epi64(quotient, base()));
  }

  // What each column is given by the one below it.
  static __m512i shifted(__m512i quotient, __m512i& before) {
    const __m512i moved = _mm512_alignr_epi64(quotient, before, 7);
    before = quotient;
    return moved;
  }

  // -1 to 2, the quotient of what is nearly a digit.
  static __m512i overflow(__m512i near) {
    const __m512i one = _mm512_set1_epi64(1);
    const __m512i zero = _mm512_setzero_si512();
    const __m512i twice = _mm512_add_epi64(base(), base());
    __m512i quotient = _mm512_maskz_mov_epi64(_mm512_cmpge_epi64_mask(near, base()), one);
    quotient = _mm512_mask_add_epi64(quotient, _mm512_cmpge_epi64_mask(near, twice), quotient, one);
    return _mm512_mask_sub_epi64(quotient, _mm512_cmplt_epi64_mask(near, zero), zero, one);
  }

  __m512i first_ = _mm512_setzero_si512();
  __m512i second_ = _mm512_setzero_si512();
  __m512i third_ = _mm512_setzero_si512();
  __mmask8 settled_ = 0xFF;
};

/// Carries on what Carry left, from the first column to the last.
template <typename Number>
inline void Settle(Number* digits, std::size_t count, Number base) {
  Number carry = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Number sum = digits[i] + carry;
    carry = static_cast<Number>((sum >= base ? 1 : 0) - (sum < 0 ? 1 : 0));
    digits[i] = sum - carry * base;
  }
}

}  // namespace
}  // namespace quorvex::native
