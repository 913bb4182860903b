// Eight lanes of doubles in AVX-512 registers.
#pragma once

#include <immintrin.h>

#include <cstddef>

namespace quorvex::native {
namespace {

struct Lanes {
  static constexpr std::size_t count = 8;
  __m512d lane;

  static Lanes Load(const double* from) { return {_mm512_load_pd(from)}; }
  static Lanes All(double value) { return {_mm512_set1_pd(value)}; }
  void store(double* to) const { _mm512_store_pd(to, lane); }
};

inline Lanes operator+(Lanes a, Lanes b) {
  return {_mm512_add_pd(a.lane, b.lane)};
}
inline Lanes operator-(Lanes a, Lanes b) {
  return {_mm512_sub_pd(a.lane, b.lane)};
}

struct Modulus {
  Lanes p;
  Lanes reciprocal;
};

inline __m512d Nearest_Product(__m512d a, __m512d b) {
  const __m512d magic = _mm512_set1_pd(6755399441055744.0);
  return _mm512_sub_pd(_mm512_fmadd_pd(a, b, magic), magic);
}

inline Lanes Multiply_Mod(Lanes a, Lanes b, const Modulus& modulus) {
  const __m512d high = _mm512_mul_pd(a.lane, b.lane);
  const __m512d low = _mm512_fmsub_pd(a.lane, b.lane, high);
  const __m512d quotient = Nearest_Product(high, modulus.reciprocal.lane);
  return {_mm512_add_pd(_mm512_fnmadd_pd(quotient, modulus.p.lane, high), low)};
}

inline Lanes Reduce(Lanes a, const Modulus& modulus) {
  const __m512d quotient = Nearest_Product(a.lane, modulus.reciprocal.lane);
  return {_mm512_fnmadd_pd(quotient, modulus.p.lane, a.lane)};
}

inline Lanes Add_If_Negative(Lanes a, Lanes b) {
  const __mmask8 negative = _mm512_cmp_pd_mask(a.lane, _mm512_setzero_pd(), _CMP_LT_OQ);
  return {_mm512_mask_add_pd(a.lane, negative, a.lane, b.lane)};
}

inline void Transpose(Lanes (&rows)[Lanes::count]) {
  __m512d pairs[8];
  for (int i = 0; i < 8; i += 2) {
    pairs[i] = _mm512_unpacklo_pd(rows[i].lane, rows[i + 1].lane);
    pairs[i + 1] = _mm512_unpackhi_pd(rows[i].lane, rows[i + 1].lane);
  }
  for (int i = 0; i < 2; ++i) {
    const __m512d a = _mm512_shuffle_f64x2(pairs[i], pairs[i + 2], 0x88);
    const __m512d b = _mm512_shuffle_f64x2(pairs[i], pairs[i + 2], 0xDD);
    const __m512d c = _mm512_shuffle_f64x2(pairs[i + 4], pairs[i + 6], 0x88);
    const __m512d d = _mm512_shuffle_f64x2(pairs[i + 4], pairs[i + 6], 0xDD);
    rows[i].lane = _mm512_shuffle_f64x2(a, c, 0x88);
    rows[i + 2].lane = _mm512_shuffle_f64x2(b, d, 0x88);
    rows[i + 4].lane = _mm512_shuffle_f64x2(a, c, 0xDD);
    rows[i + 6].lane = _mm512_shuffle_f64x2(b, d, 0xDD);
  }
}

}  // namespace
}  // namespace quorvex::native
