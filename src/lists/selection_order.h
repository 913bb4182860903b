// The arrangement that a selection sort leaves behind.
#pragma once

#include <cstddef>
#include <vector>

namespace quorvex {

/// Where a selection sort with swaps puts what has these ranks (`Ranks_Of`): at each position, the
/// place that is to be put there.
///
/// The sort fills one position after the other. It looks through what is left, the current one
/// first, for the best: of numbers the first of the least rank, and any number ahead of what is
/// none. The best then changes places with the current one, so equal ones don't keep their order. A
/// number that compares with nothing becomes the best when it is met, and so does any number that
/// comes behind it. What is no number moves only as others take its place.
std::vector<std::size_t> Selection_Order(const std::vector<std::size_t>& ranks);

}  // namespace quorvex
