// Points to and from text, and from remainders, eight at a time. For the inclusion of the AVX-512
// kernels alone.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

#include "native/avx512/carry_avx512.h"
#include "native/avx512/digit_lanes_avx512.h"
#include "native/avx512/vector_avx512.h"
#include "native/generic/field.h"

namespace quorvex::native {
namespace {

// Fills a multiple of eight points, with zeros behind the last.
template <std::size_t D>
bool Read_Points_Of(const char* text, std::size_t size, double* points) {
  __mmask64 bad = 0;
  for (std::size_t end = size; end > 0; points += 8) {
    _mm512_store_pd(points, _mm512_cvtepi64_pd(Read_Eight<D>(text, end, bad)));
    end -= end < 8 * D ? end : 8 * D;
  }
  return bad == 0;
}

inline bool Read_Eights(const char* text, std::size_t count, const Cut& cut, double* points) {
  return cut.digits == 12 ? Read_Points_Of<12>(text, count, points)
                          : Read_Points_Of<10>(text, count, points);
}

template <std::size_t D>
std::size_t Write_Points_Of(const double* points, std::size_t count, char* out) {
  while (points[count - 1] == 0) --count;
  std::size_t size = D * (count - 1) + 1;
  const auto top = static_cast<std::int64_t>(points[count - 1]);
  for (std::int64_t bound = 10; top >= bound; bound *= 10) ++size;
  // From the highest on, so that what is written beyond some numbers is overwritten by the next.
  constexpr std::size_t whole = 8 * D;
  constexpr std::size_t line = 64;
  const auto eight = [points](std::size_t at) {
    return _mm512_cvtpd_epi64(_mm512_load_pd(points + at / D));
  };
  const std::size_t first = size % whole;
  if (first > 0) Write_Eight<D>(out, first, eight(size - first));
  std::size_t written = first;
  for (; written + whole + line <= size; written += whole)
    Write_Eight_And_More<D>(out + written, eight(size - written - whole));
  for (; written < size; written += whole)
    Write_Eight<D>(out + written, whole, eight(size - written - whole));
  return size;
}

inline std::size_t Write_Eights(const double* points, std::size_t count, std::size_t digits,
                                char* out) {
  if (digits == 8) return Write_Points_Of<8>(points, count, out);
  return digits == 12 ? Write_Points_Of<12>(points, count, out)
                      : Write_Points_Of<10>(points, count, out);
}

// c1 + p1 t, where t = (c2 - c1) / p1 by the second prime, is the coefficient: its low 52 bits and
// what is above them, without carries between.
template <std::size_t D>
void Recombine_Of(double* c1, const double* c2, std::size_t count) {
  constexpr std::uint64_t p1 = primes[0].value;
  constexpr std::uint64_t p2 = primes[1].value;
  constexpr double inverse = Balanced(Inverse_Mod(p1 % p2, p2), p2);
  const Modulus first{Lanes::All(double{p1}), Lanes::All(1 / double{p1})};
  const Modulus second{Lanes::All(double{p2}), Lanes::All(1 / double{p2})};
  const __m512i factor = _mm512_set1_epi64(p1);
  Carry<D> carry;
  for (std::size_t i = 0; i < count; i += 8) {
    const Lanes a = Add_If_Negative(Reduce(Lanes::Load(c1 + i), first), first.p);
    const Lanes b = Reduce(Lanes::Load(c2 + i), second);
    const Lanes t = Add_If_Negative(Multiply_Mod(b - a, Lanes::All(inverse), second), second.p);
    const __m512i whole = _mm512_cvtpd_epi64(t.lane);
    const __m512i low = _mm512_madd52lo_epu64(_mm512_cvtpd_epi64(a.lane), whole, factor);
    const __m512i high = _mm512_madd52hi_epu64(_mm512_setzero_si512(), whole, factor);
    _mm512_store_pd(c1 + i, _mm512_cvtepi64_pd(carry.take(low, high)));
  }
  if (!carry.is_settled()) Settle(c1, count, static_cast<double>(Power_Of_Ten(D)));
}

inline void Recombine_Eights(double* c1, double* c2, std::size_t count, const Cut& cut) {
  if (cut.digits == 12) {
    Recombine_Of<12>(c1, c2, count);
  } else {
    Recombine_Of<10>(c1, c2, count);
  }
}

}  // namespace
}  // namespace quorvex::native
