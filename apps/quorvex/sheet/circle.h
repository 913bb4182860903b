// Circular references, spelt out.
#pragma once

#include <cstddef>
#include <string>

#include "sheet/workbook.h"

namespace quorvex {

/// "A1 -> B1 -> A1": a circle of dependency through a formula, shortened if it is long. The formula
/// belongs to a group of `group_size` formulas that depend on each other, all of which carry the
/// same `earliest`.
std::string Circle_Text(const Workbook& workbook, const Calculation& start, std::size_t group_size);

}  // namespace quorvex
