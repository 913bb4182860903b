// Sorting the cells of an array as numbers.
#pragma once

#include <cstddef>
#include <vector>

#include "host/host_value.h"
#include "lists/number_ranks.h"

namespace quorvex {

/// In which order the cells of an array are gone through.
enum class Cell_Path { by_column, by_row };

/// The cells of an array in the order in which a selection sort with swaps arranges them
/// (`Selection_Order`), numbers first in either direction: for each index of its values, that of
/// the cell which is put there. Fails with type_mismatch for a cell without text, such as an array,
/// and as `Ranks_Of` does.
std::vector<std::size_t> Sorted_Indices(const Array& numbers, Cell_Path path,
                                        Sort_Direction direction);

/// The cells so arranged, each with its own spelling. Blanks come out as empty text; but where
/// there are no numbers at all, a blank first cell stays blank. Fails as `Sorted_Indices` does.
Array Sort_Numbers(const Array& numbers, Sort_Direction direction);

/// The same row by row.
Array Sort_Numbers_By_Row(const Array& numbers, Sort_Direction direction);

/// The index of each cell of an array in the order of its columns.
std::vector<std::size_t> Places_By_Column(const Array& array);

}  // namespace quorvex
