// Operations on short plain numbers that are asked for nothing special.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// Writes what `Do_Operation` gives into `result`, where both operands are short plain numbers and
/// no format is asked for but a limit. False for all else, and for a sum that the limit may cut.
bool Short_Operation(std::int16_t Operation, const HostValue& number1, const HostValue& number2,
                     const Format_Arguments& format, bool intermediate, NumberText& result);

}  // namespace quorvex
