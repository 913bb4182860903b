// The product of a list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The worker of `qvxPRODUCT`. Text that is no number is passed over; the product of no numbers is
/// "1". Fails as `Walk_List` does, and with out_of_memory.
NumberText Product_Function(const List& list);

}  // namespace quorvex
