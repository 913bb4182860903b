// Where the standard input comes from.
#pragma once

#include <filesystem>

namespace quorvex {

/// Whether the standard input is read from that file.
bool Is_Input(const std::filesystem::path& file);

}  // namespace quorvex
