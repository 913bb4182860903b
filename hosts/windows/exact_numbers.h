// Numbers of automation that a 64-bit float can't always hold.
#pragma once

#include "com.h"
#include "host/host_value.h"

namespace quorvex::windows {

/// A number where 15 digits are enough, otherwise the text of all its digits, with the decimal
/// separator of the locale.
HostValue From_Decimal(const DECIMAL& decimal);
HostValue From_Currency(CY currency);

}  // namespace quorvex::windows
