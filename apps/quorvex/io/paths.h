// Names of files, which are text in UTF-8 wherever they are typed or shown.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvex {

/// A path made of plain text would be read by the code page on some systems.
inline std::filesystem::path Path_Of(std::string_view name) {
  return std::u8string(name.begin(), name.end());
}

}  // namespace quorvex
