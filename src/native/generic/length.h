// The lengths of transforms: powers of two and five, six or seven quarters of them.
#pragma once

#include <cstddef>

namespace quorvex::native {

/// A transform of `units` times `unit` points; `units` is 4 to 7 and `unit` a power of two. The
/// first four units are the remainder by x^(4 unit) - 1, what follows are remainders by factors of
/// x^(4 unit) + 1.
struct Length {
  std::size_t unit;
  std::size_t units;
  constexpr std::size_t points() const { return unit * units; }
};

/// A remainder by x^size - w, as the transform of its own.
struct Piece {
  std::size_t start;
  std::size_t size;
  std::size_t index;  ///< among the pieces of its size, counted from the left
};

struct Pieces {
  std::size_t count;
  Piece piece[3];
  std::size_t divisor;  ///< what putting the pieces together multiplies the result by
};

static constexpr Pieces Pieces_Of(const Length& length) {
  const std::size_t unit = length.unit;
  const Piece first = {0, 4 * unit, 0};
  if (length.units == 5) return {2, {first, {4 * unit, unit, 4}, {}}, 2};
  if (length.units == 6) return {2, {first, {4 * unit, 2 * unit, 2}, {}}, 2};
  if (length.units == 7) return {3, {first, {4 * unit, 2 * unit, 2}, {6 * unit, unit, 6}}, 4};
  return {1, {first, {}, {}}, 1};
}

/// The least length that holds `points`, of pieces not smaller than `block`, a power of two.
static constexpr Length Length_For(std::size_t points, std::size_t block) {
  std::size_t size = block;
  while (size < points) size *= 2;
  const std::size_t unit = size / 8;
  if (unit >= block) {
    for (std::size_t units = 5; units < 8; ++units)
      if (unit * units >= points) return {unit, units};
  }
  if (size >= 4 * block && size / 4 * 3 >= points) return {size / 8, 6};
  return {size / 4, 4};
}

}  // namespace quorvex::native
