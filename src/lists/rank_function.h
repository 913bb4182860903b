// The place of a number among others.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "lists/number_ranks.h"

namespace quorvex {

/// The worker of `qvxRANK`: the place of the first number equal to `num` in the block sorted row by
/// row; with `tie_compensation` the mean of the places of all equal ones. A number that isn't there
/// has the count of cells for its rank, less a half with `tie_compensation`. "NUM!", spelt so, for
/// a `num` that is no number. Fails as `Number_Block` and `Sort_Numbers` do.
NumberText Rank_Function(std::string_view num, const HostValue& numlist, Sort_Direction direction,
                         bool tie_compensation);

}  // namespace quorvex
