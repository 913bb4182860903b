// The sum of one block of cells.
#pragma once

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The worker of `qvxSUM`: the sum of all cells of an array or range, formatted, each addition with
/// the limit. A cell that is no number makes the result a token, as in `Do_Operation`; blank cells
/// are 0. Cells are counted from 1 whatever the bounds of the array. Fails with type_mismatch for
/// what is no two-dimensional array, such as a single cell, and with subscript_out_of_range for an
/// array that has no first row or column.
NumberText Sum_Array(const HostValue& block, const Format_Arguments& format);

}  // namespace quorvex
