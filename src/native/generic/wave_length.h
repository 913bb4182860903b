// The lengths of transforms of waves, and how precise their results are.
//
// Real polynomials are multiplied modulo x^m + 1, m a power of two, as complex ones of half as many
// points modulo x^(m/2) - i: coefficient k is the real part of point k, coefficient k + m/2 its
// imaginary part. Lengths between powers of two are products (x^4v + 1)(x^2v + 1)(x^v + 1) of which
// the second or the third factor may be missing.
#pragma once

#include <cstddef>

namespace quorvex::native {

/// `units` times `unit` real coefficients; `units` is 4 to 7 and `unit` a power of two.
struct Wave_Length {
  std::size_t unit;
  std::size_t units;
  constexpr std::size_t coefficients() const { return unit * units; }
};

/// A remainder by x^(2 size) + 1.
struct Wave_Piece {
  std::size_t start;  ///< in complex points
  std::size_t size;   ///< in complex points
};

inline constexpr std::size_t most_wave_pieces = 3;

struct Wave_Pieces {
  std::size_t count;
  Wave_Piece piece[most_wave_pieces];
};

static constexpr Wave_Pieces Pieces_Of(const Wave_Length& length) {
  const std::size_t half = length.unit / 2;
  const Wave_Piece first = {0, 4 * half};
  if (length.units == 5) return {2, {first, {4 * half, half}, {}}};
  if (length.units == 6) return {2, {first, {4 * half, 2 * half}, {}}};
  if (length.units == 7) return {3, {first, {4 * half, 2 * half}, {6 * half, half}}};
  return {1, {first, {}, {}}};
}

/// The longest piece in complex points, which bounds the memory that the tables of roots keep.
inline constexpr std::size_t most_wave_points = std::size_t{1} << 19U;

/// The least length that holds so many coefficients, of pieces not smaller than `block` complex
/// points, a power of two.
static constexpr Wave_Length Wave_Length_For(std::size_t coefficients, std::size_t block) {
  std::size_t size = 2 * block;
  while (size < coefficients) size *= 2;
  const std::size_t unit = size / 8;
  for (std::size_t units = 5; units < 8; ++units) {
    const std::size_t least = units == 6 ? unit : unit / 2;
    if (least >= block && unit * units >= coefficients) return {unit, units};
  }
  return {size / 4, 4};
}

}  // namespace quorvex::native
