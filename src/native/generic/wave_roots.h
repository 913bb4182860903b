// Powers of complex roots of unity in the order in which the transform of waves meets them.
//
// The transform splits x^n - u^2 into x^(n/2) - u and x^(n/2) + u, from x^n - i on. Numbering the
// nodes from 1, the children of node j being 2j and 2j + 1, node j splits by u(j) with u(1) =
// e(1/8), u(2j)^2 = u(j) and u(2j + 1) = i u(2j), where e(t) is the root at t of a whole turn.
//
// Where four parts arise at once, the children's u(2j) = v gives the factors v^2, v and v^3; where
// eight do, u(4j) and u(4j + 2) go with them.
#pragma once

#include <cstddef>

namespace quorvex::native {

/// Tables for vectors of some count of lanes. A complex number takes two doubles, a vector of them
/// the real parts before the imaginary ones.
struct Wave_Roots {
  /// For node j, at 10 j: v^2, v, v^3, u(4j), u(4j + 2).
  const double* nodes;

  /// For each block of lanes * lanes points in order, the factors of the node above its rows, and
  /// vectors of those of the nodes above its columns: three for four lanes, five for eight.
  const double* rows;
  const double* columns;
};

static constexpr std::size_t Block_Factors(std::size_t lanes) {
  return lanes == 8 ? 5 : 3;
}

/// The tables for pieces of `points` complex points, a power of two between lanes * lanes and
/// most_wave_points; computed once and kept. Each part of a factor is off by less than 1.5 * 2^-54.
/// False if there is no memory for them. `lanes` is 4 or 8.
bool Find_Roots(std::size_t lanes, std::size_t points, Wave_Roots& roots) noexcept;

}  // namespace quorvex::native
