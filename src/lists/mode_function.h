// The most frequent number of a list, and the table of all.
#pragma once

#include <optional>

#include "host/host_value.h"

namespace quorvex {

/// The worker of `qvxMODE`: the number that occurs most often, the first such, as text; empty text
/// where there is none. With TABLE among the options an array, a row for each number: how often it
/// occurs, and the number, both formatted; with BLANK= also laid into a block of the caller's size
/// (`Copy_Sort_Result`). Fails as `Walk_List` does, and with out_of_memory for a number that has no
/// room; with TABLE also as `Size_Of_Block` does, and with subscript_out_of_range where there is no
/// number.
HostValue Mode_Function(const List& list, std::optional<double> rows,
                        std::optional<double> columns);

}  // namespace quorvex
