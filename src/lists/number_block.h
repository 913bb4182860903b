// The two-dimensional array that some functions take for their list.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The cells of an array, or of a range of several, as an array of their own; a list of one such
/// block is that block. Fails with type_mismatch for anything else, such as a single cell.
Array Block_Of(const HostValue& numlist);

}  // namespace quorvex
