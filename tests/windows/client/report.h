// Lines that are shown even where all is well.
#pragma once

#include <string>

namespace quorvex::windows {

/// Adds a line to the file that QUORVEX_REPORT names.
void Report(const std::string& line);

}  // namespace quorvex::windows
