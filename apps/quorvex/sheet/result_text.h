// Results as people read them.
#pragma once

#include <string>

#include "frame/catalogue.h"

namespace quorvex {

/// Appends a result, each line of it with its line end: a record a field a line, an array a row a
/// line with its columns aligned, any other value as itself. A method without a result gives no
/// line.
void Append_Result_Lines(std::string& out, const Call_Result& result);

}  // namespace quorvex
