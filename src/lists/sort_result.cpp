#include "lists/sort_result.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "lists/sort_numbers.h"

namespace quorvex {
namespace {

std::size_t Count_Of(std::optional<double> asked, std::size_t extent) {
  if (!asked) return extent;
  const std::int32_t count = To_Int32(*asked);
  if (count < 1) {
    throw Run_Time_Failure(
        Failure_Number::subscript_out_of_range,
        "A block of cells has one row and one column at least, not " + std::to_string(count) + ".");
  }
  return static_cast<std::size_t>(count);
}

Array Filled_Block(const Block_Size& size, const NumberText& filler) {
  const double cells = static_cast<double>(size.rows) * static_cast<double>(size.columns);
  Require_Memory(cells * static_cast<double>(sizeof(HostValue) + filler.capacity()));
  Array block;
  block.rows = size.rows;
  block.columns = size.columns;
  block.values.assign(size.rows * size.columns, filler);
  return block;
}

bool Is_That_Block(const Array& array, const Block_Size& size) {
  return array.rows == size.rows && array.columns == size.columns && array.lower_row == 1 &&
         array.lower_column == 1;
}

}  // namespace

Block_Size Size_Of_Block(std::optional<double> rows, std::optional<double> columns,
                         const Array& array) {
  return {Count_Of(rows, array.rows), Count_Of(columns, array.columns)};
}

Array Copy_Sort_Result(Array sorted, const Block_Size& size, const NumberText& filler) {
  if (Is_That_Block(sorted, size)) return sorted;
  Array block = Filled_Block(size, filler);
  // Rows and columns count from 1 in the block, and from their bounds in the array.
  const auto first_row = std::max<std::int64_t>(sorted.lower_row, 1);
  const auto first_column = std::max<std::int64_t>(sorted.lower_column, 1);
  const auto last_row = std::min(sorted.lower_row + static_cast<std::int64_t>(sorted.rows) - 1,
                                 static_cast<std::int64_t>(size.rows));
  const auto last_column =
      std::min(sorted.lower_column + static_cast<std::int64_t>(sorted.columns) - 1,
               static_cast<std::int64_t>(size.columns));
  for (std::int64_t row = first_row; row <= last_row; ++row) {
    Yield();
    const auto from = static_cast<std::size_t>(row - sorted.lower_row) * sorted.columns;
    const auto to = static_cast<std::size_t>(row - 1) * block.columns;
    for (std::int64_t column = first_column; column <= last_column; ++column) {
      block.values[to + static_cast<std::size_t>(column - 1)] =
          std::move(sorted.values[from + static_cast<std::size_t>(column - sorted.lower_column)]);
    }
  }
  return block;
}

Array Fit_Sort_Result(const Array& sorted, const Block_Size& size, const NumberText& filler,
                      bool left_to_right) {
  Array block = Filled_Block(size, filler);
  const std::size_t cells = std::min(sorted.values.size(), block.values.size());
  if (left_to_right) {
    std::copy_n(sorted.values.begin(), cells, block.values.begin());
    return block;
  }
  const auto from = Places_By_Column(sorted);
  const auto to = Places_By_Column(block);
  for (std::size_t i = 0; i < cells; ++i) block.values[to[i]] = sorted.values[from[i]];
  return block;
}

}  // namespace quorvex
