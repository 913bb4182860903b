// Values as people read them.
#pragma once

#include <string>

#include "host/host_value.h"

namespace quorvex {

/// A value as it is shown: text as it is, numbers in the user's locale, TRUE and FALSE, #N/A and
/// its like, blank as empty text, arrays as {1,2;3,4}. Ranges and lists are shown by their cells
/// and elements.
std::string Render(const HostValue& value);

}  // namespace quorvex
