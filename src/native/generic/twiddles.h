// Powers of roots of unity in the order in which the transform meets them.
//
// The transform splits x^n - w^2 into x^(n/2) - w and x^(n/2) + w. Counting the pieces of one size
// from the left, piece j splits by w(j), with w(0) = 1, w(2j)^2 = w(j) and w(2j+1) = i w(2j). So
// w(j) is the product of the roots r(t) of order 2^(t+2) over the bits t that j has, which does not
// depend on the length of the transform: one table serves all, and w(j + k) = w(j) w(k) where j and
// k share no bit.
#pragma once

#include <cstddef>

namespace quorvex::native {

/// Tables of one prime, for vectors of some count of lanes, in one direction: the powers or their
/// inverses.
struct Twiddles {
  double prime;
  double reciprocal;
  double roots[32];  ///< r(t)

  /// w(j) for j below the count of `singles`.
  const double* singles;

  /// For blocks of lanes * lanes points, after a transposition: at block b, for each level s and
  /// each m below 2^s, a vector whose lane l holds w(2^s (lanes b + l) + m).
  const double* vectors;
};

inline constexpr std::size_t tabled_singles = std::size_t{1} << 17U;

/// Blocks of up to so many points in all have their own vectors; beyond, vectors are multiplied
/// with the w of the block's high bits, which bounds the memory that the tables keep.
inline constexpr std::size_t tabled_points = std::size_t{1} << 18U;

/// Tables that are filled as far as a transform of `points` points needs them; computed once and
/// kept. Null if there is no memory for them. `lanes` is 4 or 8.
const Twiddles* Find_Twiddles(std::size_t prime, std::size_t lanes, bool inverse,
                              std::size_t points) noexcept;

}  // namespace quorvex::native
