// How a sorted block is laid into the cells that the caller has for it.
#pragma once

#include <cstddef>
#include <optional>

#include "host/host_value.h"

namespace quorvex {

struct Block_Size {
  std::size_t rows = 0;
  std::size_t columns = 0;
};

/// The size of the caller's block. A count that is missing is that of `array`; one that is given is
/// rounded to a whole number, halves to even. Fails with subscript_out_of_range below 1, with
/// overflow beyond 32 bits.
Block_Size Size_Of_Block(std::optional<double> rows, std::optional<double> columns,
                         const Array& array);

/// A block in which each cell holds the cell of the same row and column of `sorted`, counted as its
/// bounds say, and `filler` where there is none. What doesn't fit is cut.
Array Copy_Sort_Result(Array sorted, const Block_Size& size, const NumberText& filler);

/// A block into which the cells of `sorted` are poured row by row, or column by column, whatever
/// its shape; `filler` behind them. What doesn't fit is cut.
Array Fit_Sort_Result(const Array& sorted, const Block_Size& size, const NumberText& filler,
                      bool left_to_right);

}  // namespace quorvex
