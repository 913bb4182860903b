// Sums, means and counts of a list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// What is made of the sum of a list.
enum class Sum_Kind { sum, average, count };

/// The worker of `qvxSUM2`, `qvxAVERAGE` and `qvxCOUNT`. Text that is no number is passed over. The
/// mean is worked out only of a sum that is not 0; its division takes the limit of the list, and
/// without one it is "#VALUE!", since the limit that lists start with is beyond a precision. Fails
/// as `Walk_List` does, and with overflow for a mean of a sum too large for a 64-bit float.
NumberText Sum_Function(const List& list, Sum_Kind kind);

}  // namespace quorvex
