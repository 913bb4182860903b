// A worksheet as lines of text with aligned columns.
#pragma once

#include <cstddef>
#include <iosfwd>

#include "sheet/worksheet.h"

namespace quorvex {

struct Grid_Options {
  std::size_t width_limit = 0;  // longer values are cut to this many characters; 0 cuts none
  // Columns are shortened, the widest first, until a line has no more characters; 0 shortens none.
  std::size_t total_width = 0;
};

/// Prints the values, rows from the first of the worksheet to the last used one: numbers and
/// number-like text to the right, other text to the left. Text that is alone in its row, as a note
/// is, may reach beyond its column. False if columns had to be shortened to the total width.
bool Print_Grid(std::ostream& out, const Worksheet& sheet, const Grid_Options& options = {});

}  // namespace quorvex
