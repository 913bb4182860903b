// Why a text is no number.
#pragma once

#include <string>

#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

/// A sentence on a text that the engine doesn't read as a number; empty for one that it reads, and
/// for a truth value's word.
std::string Number_Problem(cls_Quorvex& engine, const HostValue& text);

/// A text in double quotes, cut if it is long.
std::string Shortly(const std::string& text);

}  // namespace quorvex
