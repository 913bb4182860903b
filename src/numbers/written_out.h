// Numbers brought to plain digits, for what looks at their characters.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// Writes a number in E notation or in parentheses out as plain digits, with a minus for its sign;
/// one that has no digits left is 0.
/// Every other spelling stays as it is, and so does text that is no number. Fails with
/// out_of_memory for more digits than there is room.
void Write_Out(NumberText& text);

}  // namespace quorvex
