// Sorting the cells of an array as numbers.
#pragma once

#include <cstddef>
#include <vector>

#include "host/host_value.h"
#include "lists/number_ranks.h"

namespace quorvex {

/// Sorts the cells of an array, column by column, as a selection sort with swaps arranges them
/// (`Selection_Order`): numbers first in either direction, each with its own spelling. Blanks come
/// out as empty text; but where there are no numbers at all, a blank first cell stays blank. Fails
/// with type_mismatch for a cell without text, such as an array, and as `Ranks_Of` does.
Array Sort_Numbers(Array numbers, Sort_Direction direction);

/// The same row by row.
Array Sort_Numbers_By_Row(Array numbers, Sort_Direction direction);

/// The index of each cell of an array in the order of its columns.
std::vector<std::size_t> Places_By_Column(const Array& array);

}  // namespace quorvex
