// Transforms of lengths between powers of two, see length.h: the remainders by the further factors
// are formed in one pass before, and the coefficients are got back from them in one pass after.
// Follows transform.h.
//
// With c0, c1, ... the coefficients by units, i = w(1), s = w(2), r = w(3), where s^2 = i,
// r^2 = -i and r^4 = s^4 = -1:
//   five   c0 + c4, c1, c2, c3; c0 - c4 + s c1 + i c2 + s i c3
//   six    c0 + c2, c1 (of two units each); c0 - c2 + i c1
//   seven  c0 + c4, c1 + c5, c2 + c6, c3; (c0 - c4) + i (c2 - c6), (c1 - c5) + i c3;
//          (c0 - c4) - i (c2 - c6) + r (c1 - c5) - r i c3
#pragma once

#include "native/generic/transform.h"

namespace quorvex::native {
namespace {

// Units of one transform at one place.
struct Column {
  double* x;
  std::size_t unit;
  Lanes get(std::size_t k) const { return Lanes::Load(x + k * unit); }
  void set(std::size_t k, Lanes value) const { value.store(x + k * unit); }
};

inline void Part_Five(const Column& c, const Lanes (&w)[3], const Modulus& modulus) {
  Lanes rest = c.get(0) - c.get(4);
  c.set(0, c.get(0) + c.get(4));
  for (std::size_t k = 0; k < 3; ++k) rest = rest + Multiply_Mod(c.get(k + 1), w[k], modulus);
  c.set(4, rest);
}

// Everything has been halved before.
inline void Unite_Five(const Column& c, const Lanes (&w)[3], const Modulus& modulus) {
  Lanes rest = c.get(4);
  for (std::size_t k = 0; k < 3; ++k) {
    const Lanes middle = c.get(k + 1);
    rest = rest - Multiply_Mod(middle, w[k], modulus);
    c.set(k + 1, middle + middle);
  }
  const Lanes first = c.get(0);
  c.set(0, first + rest);
  c.set(4, first - rest);
}

inline void Part_Three(const Column& c, Lanes i, const Modulus& modulus) {
  const Lanes first = c.get(0);
  const Lanes last = c.get(2);
  c.set(0, first + last);
  c.set(2, first - last + Multiply_Mod(c.get(1), i, modulus));
}

inline void Unite_Three(const Column& c, Lanes i, const Modulus& modulus) {
  const Lanes first = c.get(0);
  const Lanes middle = c.get(1);
  const Lanes rest = c.get(2) - Multiply_Mod(middle, i, modulus);
  c.set(0, first + rest);
  c.set(1, middle + middle);
  c.set(2, first - rest);
}

// w holds i, r and r i.
inline void Part_Seven(const Column& c, const Lanes (&w)[3], const Modulus& modulus) {
  const Lanes even = c.get(0) - c.get(4);
  const Lanes odd = c.get(1) - c.get(5);
  const Lanes turned = Multiply_Mod(c.get(2) - c.get(6), w[0], modulus);
  const Lanes third = c.get(3);
  for (std::size_t k = 0; k < 3; ++k) c.set(k, c.get(k) + c.get(k + 4));
  c.set(4, even + turned);
  c.set(5, odd + Multiply_Mod(third, w[0], modulus));
  c.set(6, even - turned + Multiply_Mod(odd, w[1], modulus) - Multiply_Mod(third, w[2], modulus));
}

// Everything has been quartered before. `back` is 1/i.
inline void Unite_Seven(const Column& c, const Lanes (&w)[3], Lanes back, const Modulus& modulus) {
  const Lanes third = c.get(3);
  const Lanes odd = c.get(5) - Multiply_Mod(third, w[0], modulus);
  const Lanes last =
      c.get(6) - Multiply_Mod(odd, w[1], modulus) + Multiply_Mod(third, w[2], modulus);
  const Lanes even = c.get(4) + last;
  const Lanes turned = Multiply_Mod(c.get(4) - last, back, modulus);
  const Lanes differences[3] = {even, odd + odd, turned};
  for (std::size_t k = 0; k < 3; ++k) {
    const Lanes sum = c.get(k) + c.get(k);
    c.set(k, sum + differences[k]);
    c.set(k + 4, sum - differences[k]);
  }
  c.set(3, third + third + (third + third));
}

inline void Fill_Powers(Lanes (&w)[3], const Length& length, const Powers& powers) {
  const Lanes i = powers.single(1);
  const Lanes s = powers.single(2);
  const Lanes r = powers.single(3);
  if (length.units == 7) {
    w[0] = i;
    w[1] = r;
    w[2] = Multiply_Mod(r, i, powers.modulus);
  } else {
    w[0] = s;
    w[1] = i;
    w[2] = Multiply_Mod(s, i, powers.modulus);
  }
}

inline void Part(double* x, const Length& length, const Powers& powers) {
  if (length.units == 4) return;
  Lanes w[3];
  Fill_Powers(w, length, powers);
  const std::size_t unit = length.units == 6 ? 2 * length.unit : length.unit;
  for (std::size_t at = 0; at < unit; at += Lanes::count) {
    const Column column{x + at, unit};
    if (length.units == 5) Part_Five(column, w, powers.modulus);
    if (length.units == 6) Part_Three(column, w[1], powers.modulus);
    if (length.units == 7) Part_Seven(column, w, powers.modulus);
  }
}

// The powers are those of the forward transform here too.
inline void Unite(double* x, const Length& length, const Powers& powers) {
  if (length.units == 4) return;
  Lanes w[3];
  Fill_Powers(w, length, powers);
  const Lanes back = Lanes::All(0) - powers.single(1);
  const std::size_t unit = length.units == 6 ? 2 * length.unit : length.unit;
  for (std::size_t at = 0; at < unit; at += Lanes::count) {
    const Column column{x + at, unit};
    if (length.units == 5) Unite_Five(column, w, powers.modulus);
    if (length.units == 6) Unite_Three(column, w[1], powers.modulus);
    if (length.units == 7) Unite_Seven(column, w, back, powers.modulus);
  }
}

inline void Forward(double* x, const Length& length, const Twiddles& tables) {
  Powers powers(tables);
  Part(x, length, powers);
  const Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k)
    Split_All(x + pieces.piece[k].start, pieces.piece[k].size, pieces.piece[k].index, powers);
}

// a = a b, divided by what the way back multiplies with.
inline void Multiply_Points(double* a, const double* b, const Length& length,
                            const Twiddles& tables) {
  const Modulus modulus = Modulus_Of(tables);
  const auto p = static_cast<std::uint64_t>(tables.prime);
  const Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k) {
    const Piece& piece = pieces.piece[k];
    // 1 / 2^n = p - (p - 1) / 2^n for p = 1 modulo 2^n.
    const Lanes scale = Lanes::All(Balanced(p - (p - 1) / (piece.size * pieces.divisor), p));
    for (std::size_t i = piece.start; i < piece.start + piece.size; i += Lanes::count) {
      const Lanes scaled = Multiply_Mod(Lanes::Load(b + i), scale, modulus);
      Multiply_Mod(Reduce(Lanes::Load(a + i), modulus), scaled, modulus).store(a + i);
    }
  }
}

inline void Inverse(double* x, const Length& length, const Twiddles& tables,
                    const Twiddles& forward) {
  Powers powers(tables);
  const Pieces pieces = Pieces_Of(length);
  for (std::size_t k = 0; k < pieces.count; ++k)
    Join_All(x + pieces.piece[k].start, pieces.piece[k].size, pieces.piece[k].index, powers);
  Unite(x, length, Powers(forward));
}

}  // namespace
}  // namespace quorvex::native
