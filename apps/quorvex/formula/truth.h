// Values as conditions.
#pragma once

#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

/// A single value as TRUE or FALSE: a number, or text that the engine reads as one, unless it is 0;
/// the words true and false in any case. A blank is FALSE. An error or a token stays what it is,
/// and other text gives #VALUE!.
HostValue Truth_Of(cls_Quorvex& engine, const HostValue& value);

}  // namespace quorvex
