// The numbers at given places of a sorted block.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "lists/number_ranks.h"

namespace quorvex {

/// The worker of `qvxLARGE` (descending) and `qvxSMALL` (ascending): the text of the cell at place
/// `k` of the block sorted column by column, as it stands. "#NUM!" for an empty `k`, one that is
/// not above 0 or beyond the count of cells, and a place that holds no number. A place in a column
/// is rounded to a whole number, halves to even. Fails as `Number_Block` and `Sort_Numbers` do,
/// with type_mismatch or overflow for a `k` that is no 64-bit float, and with
/// subscript_out_of_range for a place outside the bounds of the block: one that is rounded to 0,
/// such as 0.5.
NumberText LargeSmall_Function(const HostValue& numlist, std::string_view k,
                               Sort_Direction direction);

}  // namespace quorvex
