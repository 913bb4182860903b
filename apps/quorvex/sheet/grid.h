// A worksheet as lines of text with aligned columns.
#pragma once

#include <cstddef>
#include <iosfwd>

#include "sheet/worksheet.h"

namespace quorvex {

struct Grid_Options {
  std::size_t width_limit = 0;  // longer values are cut to this many characters; 0 cuts none
};

/// Prints the values, rows from the first of the worksheet to the last used one: numbers and
/// number-like text to the right, other text to the left. Text that is alone in its row, as a note
/// is, may reach beyond its column.
void Print_Grid(std::ostream& out, const Worksheet& sheet, const Grid_Options& options = {});

}  // namespace quorvex
