// From the coefficients of a factor to the pieces of a transform of waves, and from the pieces of a
// product to its coefficients. Follows waves.h.
//
// With c0, c1, ... the coefficients by units, those that are missing zero, the pieces are the
// remainders by y^4 + 1, y^2 + 1 and y + 1:
//   a0 = c0 - c4, a1 = c1 - c5, a2 = c2 - c6, a3 = c3
//   b0 = c0 - c2 + c4 - c6, b1 = c1 - c3 + c5
//   e = c0 - c1 + c2 - c3 + c4 - c5 + c6
// The way back divides sums by two, without a rest; what they hold stays far below 2^53.
#pragma once

#include "native/generic/waves.h"

namespace quorvex::native {
namespace {

// The remainder by x^m + 1 at k.
inline Lanes Folded(const double* from, std::size_t count, std::size_t k, std::size_t m) {
  Lanes sum = k < count ? Lanes::Load(from + k) : Lanes::All(0);
  for (k += m; k < count; k += m) {
    sum = sum - Lanes::Load(from + k);
    k += m;
    if (k < count) sum = sum + Lanes::Load(from + k);
  }
  return sum;
}

inline double Sum_Of(Lanes value) {
  alignas(64) double lanes[Lanes::count];
  value.store(lanes);
  double sum = 0;
  for (const double lane : lanes) sum += lane;
  return sum;
}

// One piece of `count` coefficients, its first node split into so many parts at once, or with one
// part as it is. Returns the sum of the squares.
template <std::size_t parts>
double Fold_Piece(const double* from, std::size_t count, double* x, std::size_t size,
                  const double* factors) {
  Lanes sum = Lanes::All(0);
  Row_Factors w = {};
  if constexpr (parts > 1) w = Load_Factors<1>(factors);
  for (std::size_t i = 0; i < size / parts; i += Lanes::count) {
    Complex part[parts];
    for (std::size_t k = 0; k < parts; ++k) {
      const std::size_t at = i + k * (size / parts);
      part[k] = {Folded(from, count, at, 2 * size), Folded(from, count, at + size, 2 * size)};
      sum = Add_Product(part[k].re, part[k].re, sum);
      sum = Add_Product(part[k].im, part[k].im, sum);
    }
    Split_At_Once(part, w);
    Store_Parts(part, x + 2 * i, size);
  }
  return Sum_Of(sum);
}

// Takes `count` coefficients, a multiple of the lanes; `squares` gets the sum of their squares in
// each piece. Pieces that are not near have been split once afterwards.
inline void Fold_Waves(const double* from, std::size_t count, const Wave_Length& length,
                       const Wave_Roots* roots, double* x, double* squares) {
  const Wave_Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k) {
    const std::size_t size = pieces.piece[k].size;
    double* const to = x + 2 * pieces.piece[k].start;
    const double* const factors = Factors_Of(roots[k], 1);
    if (size <= near_wave_points) {
      squares[k] = Fold_Piece<1>(from, count, to, size, factors);
    } else if (Parts_Of(size) == 4) {
      squares[k] = Fold_Piece<4>(from, count, to, size, factors);
    } else {
      squares[k] = Fold_Piece<Lanes::count>(from, count, to, size, factors);
    }
  }
}

// The real coefficients of one piece, divided by its size and rounded.
struct Rounded_Piece {
  Rounded_Piece(const double* x, const Wave_Piece& piece)
      : start(x + 2 * piece.start),
        size(piece.size),
        scale(Lanes::All(1 / static_cast<double>(piece.size))) {}

  Lanes get(std::size_t k) const {
    const double* const from = k < size ? start + 2 * k : start + 2 * (k - size) + Lanes::count;
    const Lanes magic = Lanes::All(6755399441055744.0);
    return Add_Product(Lanes::Load(from), scale, magic) - magic;
  }

  const double* start;
  std::size_t size;
  Lanes scale;
};

inline Lanes Half(Lanes value) {
  return value * Lanes::All(0.5);
}

// All seven units' coefficients at k, of which only as many as there are are meant.
inline void Unfold_Units(const Wave_Length& length, const Rounded_Piece (&piece)[3], std::size_t k,
                         Lanes (&c)[7]) {
  const std::size_t v = length.unit;
  Lanes a[4];
  for (std::size_t i = 0; i < 4; ++i) a[i] = piece[0].get(k + i * v);
  const Lanes last = piece[length.units == 7 ? 2 : 1].get(k);
  c[3] = a[3];
  if (length.units == 5) {
    const Lanes sum = last + a[1] - a[2] + a[3];
    c[0] = Half(sum + a[0]);
    c[1] = a[1];
    c[2] = a[2];
    c[4] = Half(sum - a[0]);
    return;
  }
  const Lanes b = piece[1].get(k);
  const Lanes odd = piece[1].get(k + v) + a[3];
  c[1] = Half(odd + a[1]);
  c[5] = Half(odd - a[1]);
  Lanes even = b + a[2];
  c[2] = a[2];
  if (length.units == 7) {
    const Lanes all = last + odd + a[3];
    const Lanes second = Half(all - b);
    even = Half(all + b);
    c[2] = Half(second + a[2]);
    c[6] = Half(second - a[2]);
  }
  c[0] = Half(even + a[0]);
  c[4] = Half(even - a[0]);
}

// Puts all coefficients into one row.
inline void Unfold_Waves(const double* x, const Wave_Length& length, double* to) {
  const Wave_Pieces pieces = Pieces_Of(length);
  const Rounded_Piece piece[3] = {{x, pieces.piece[0]},
                                  {x, pieces.piece[pieces.count > 1 ? 1 : 0]},
                                  {x, pieces.piece[pieces.count > 2 ? 2 : 0]}};
  if (length.units == 4) {
    for (std::size_t k = 0; k < length.coefficients(); k += Lanes::count)
      piece[0].get(k).store(to + k);
    return;
  }
  for (std::size_t k = 0; k < length.unit; k += Lanes::count) {
    Lanes c[7];
    Unfold_Units(length, piece, k, c);
    for (std::size_t i = 0; i < length.units; ++i) c[i].store(to + i * length.unit + k);
  }
}

}  // namespace
}  // namespace quorvex::native
