// Files that tests read: those of the source tree, and what programs have written.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace quorvex {

/// The folder that holds src and tests.
inline const std::filesystem::path source_folder = QUORVEX_SOURCE;

/// The whole of a file; empty if there is none.
inline std::string File_Text(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

inline std::vector<std::string> Lines_Of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace quorvex
