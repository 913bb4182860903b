// Whether a value tells of an error.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The worker of `qvxISERROR`: true for an error value of the host, and for text that holds "#"
/// anywhere, as for results. "DIV/0!" and "VALUE!", which some functions give, are no errors by it.
/// Fails with type_mismatch for a value without text.
bool IsError_Function(const HostValue& num);

}  // namespace quorvex
