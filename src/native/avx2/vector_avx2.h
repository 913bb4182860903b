// Four lanes of doubles in AVX2 registers with fused multiplication and addition.
#pragma once

#include <immintrin.h>

#include <cstddef>

namespace quorvex::native {
namespace {

struct Lanes {
  static constexpr std::size_t count = 4;
  __m256d lane;

  static Lanes Load(const double* from) { return {_mm256_load_pd(from)}; }
  static Lanes All(double value) { return {_mm256_set1_pd(value)}; }
  void store(double* to) const { _mm256_store_pd(to, lane); }
};

inline Lanes operator+(Lanes a, Lanes b) {
  return {_mm256_add_pd(a.lane, b.lane)};
}
inline Lanes operator-(Lanes a, Lanes b) {
  return {_mm256_sub_pd(a.lane, b.lane)};
}

inline Lanes operator*(Lanes a, Lanes b) {
  return {_mm256_mul_pd(a.lane, b.lane)};
}

// a b + c and c - a b, rounded once.
inline Lanes Add_Product(Lanes a, Lanes b, Lanes c) {
  return {_mm256_fmadd_pd(a.lane, b.lane, c.lane)};
}
inline Lanes Take_Product(Lanes a, Lanes b, Lanes c) {
  return {_mm256_fnmadd_pd(a.lane, b.lane, c.lane)};
}

struct Modulus {
  Lanes p;
  Lanes reciprocal;
};

inline __m256d Nearest_Product(__m256d a, __m256d b) {
  const __m256d magic = _mm256_set1_pd(6755399441055744.0);
  return _mm256_sub_pd(_mm256_fmadd_pd(a, b, magic), magic);
}

inline Lanes Multiply_Mod(Lanes a, Lanes b, const Modulus& modulus) {
  const __m256d high = _mm256_mul_pd(a.lane, b.lane);
  const __m256d low = _mm256_fmsub_pd(a.lane, b.lane, high);
  const __m256d quotient = Nearest_Product(high, modulus.reciprocal.lane);
  return {_mm256_add_pd(_mm256_fnmadd_pd(quotient, modulus.p.lane, high), low)};
}

inline Lanes Reduce(Lanes a, const Modulus& modulus) {
  const __m256d quotient = Nearest_Product(a.lane, modulus.reciprocal.lane);
  return {_mm256_fnmadd_pd(quotient, modulus.p.lane, a.lane)};
}

// The lanes of `value` where `a` is negative, zero elsewhere.
inline Lanes If_Negative(Lanes a, Lanes value) {
  const __m256d negative = _mm256_cmp_pd(a.lane, _mm256_setzero_pd(), _CMP_LT_OQ);
  return {_mm256_and_pd(negative, value.lane)};
}

inline Lanes Add_If_Negative(Lanes a, Lanes b) {
  return a + If_Negative(a, b);
}

// The whole number nearest to a product that is below 2^51 in size.
inline Lanes Nearest_Of(Lanes a, Lanes b) {
  return {Nearest_Product(a.lane, b.lane)};
}

// Each lane's neighbour below: the last lane of `before`, then all but the last of `lanes`.
inline Lanes From_Below(Lanes before, Lanes lanes) {
  const __m256d crossing = _mm256_permute2f128_pd(before.lane, lanes.lane, 0x21);
  return {_mm256_shuffle_pd(crossing, lanes.lane, 0x5)};
}

// Neighbours of two runs of lanes, the second of each times a factor, added.
inline Lanes Join_Neighbours(Lanes a, Lanes b, Lanes factor) {
  const __m256d even = _mm256_unpacklo_pd(a.lane, b.lane);
  const __m256d odd = _mm256_unpackhi_pd(a.lane, b.lane);
  const __m256d joined = _mm256_fmadd_pd(odd, factor.lane, even);
  return {_mm256_permute4x64_pd(joined, 0xD8)};
}

inline void Transpose(Lanes (&rows)[Lanes::count]) {
  const __m256d a = _mm256_unpacklo_pd(rows[0].lane, rows[1].lane);
  const __m256d b = _mm256_unpackhi_pd(rows[0].lane, rows[1].lane);
  const __m256d c = _mm256_unpacklo_pd(rows[2].lane, rows[3].lane);
  const __m256d d = _mm256_unpackhi_pd(rows[2].lane, rows[3].lane);
  rows[0].lane = _mm256_permute2f128_pd(a, c, 0x20);
  rows[1].lane = _mm256_permute2f128_pd(b, d, 0x20);
  rows[2].lane = _mm256_permute2f128_pd(a, c, 0x31);
  rows[3].lane = _mm256_permute2f128_pd(b, d, 0x31);
}

}  // namespace
}  // namespace quorvex::native
