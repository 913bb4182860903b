// The number in the middle of a list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The worker of `qvxMEDIAN`: the middle one of the numbers of a list, or half the sum of the two
/// middle ones. That division takes the limit of the list; without one it is "#VALUE!", since the
/// limit that lists start with is beyond a precision. Fails as `Walk_List` does, with
/// subscript_out_of_range where there is no number, and with out_of_memory for one that has no
/// room.
NumberText Median_Function(const List& list);

}  // namespace quorvex
