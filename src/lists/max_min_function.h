// The greatest and the least number of a list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

enum class Extreme { greatest, least };

/// The worker of `qvxMAX` and `qvxMIN`. The best number keeps its spelling, and of equal ones the
/// first is kept. The first element is taken as it is: where it is no number, nothing compares with
/// it, and it is the result. A list without elements gives empty text. Fails as `Walk_List` does,
/// and with out_of_memory for a number that has no room.
NumberText MaxMin_Function(const List& list, Extreme extreme);

}  // namespace quorvex
