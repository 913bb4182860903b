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

inline Lanes operator*(Lanes a, Lanes b) {
  return {_mm512_mul_pd(a.lane, b.lane)};
}

// a b + c and c - a b, rounded once.
inline Lanes Add_Product(Lanes a, Lanes b, Lanes c) {
  return {_mm512_fmadd_pd(a.lane, b.lane, c.lane)};
}
inline Lanes Take_Product(Lanes a, Lanes b, Lanes c) {
  return {_mm512_fnmadd_pd(a.lane, b.lane, c.lane)};
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

// Turns the pairs that stand in eight half rows, every other of the eight rows.
inline void Transpose_Pairs(__m512d a, __m512d b, __m512d c, __m512d d, Lanes (&rows)[Lanes::count],
                            std::size_t first) {
  const __m512d low_even = _mm512_shuffle_f64x2(a, b, 0x88);
  const __m512d low_odd = _mm512_shuffle_f64x2(a, b, 0xDD);
  const __m512d high_even = _mm512_shuffle_f64x2(c, d, 0x88);
  const __m512d high_odd = _mm512_shuffle_f64x2(c, d, 0xDD);
  rows[first].lane = _mm512_shuffle_f64x2(low_even, high_even, 0x88);
  rows[first + 2].lane = _mm512_shuffle_f64x2(low_odd, high_odd, 0x88);
  rows[first + 4].lane = _mm512_shuffle_f64x2(low_even, high_even, 0xDD);
  rows[first + 6].lane = _mm512_shuffle_f64x2(low_odd, high_odd, 0xDD);
}

// Without loops, for the rows to stay in registers.
inline void Transpose(Lanes (&rows)[Lanes::count]) {
  const __m512d a = _mm512_unpacklo_pd(rows[0].lane, rows[1].lane);
  const __m512d b = _mm512_unpacklo_pd(rows[2].lane, rows[3].lane);
  const __m512d c = _mm512_unpacklo_pd(rows[4].lane, rows[5].lane);
  const __m512d d = _mm512_unpacklo_pd(rows[6].lane, rows[7].lane);
  const __m512d e = _mm512_unpackhi_pd(rows[0].lane, rows[1].lane);
  const __m512d f = _mm512_unpackhi_pd(rows[2].lane, rows[3].lane);
  const __m512d g = _mm512_unpackhi_pd(rows[4].lane, rows[5].lane);
  const __m512d h = _mm512_unpackhi_pd(rows[6].lane, rows[7].lane);
  Transpose_Pairs(a, b, c, d, rows, 0);
  Transpose_Pairs(e, f, g, h, rows, 1);
}

}  // namespace
}  // namespace quorvex::native
