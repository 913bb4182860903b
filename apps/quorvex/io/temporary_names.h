// How files are called that will take the place of others.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quorvex {

inline constexpr std::string_view temporary_mark = ".part";

inline std::filesystem::path Temporary_Beside(const std::filesystem::path& target) {
  std::filesystem::path temporary = target;
  temporary += std::string(temporary_mark) + std::to_string(std::random_device()());
  return temporary;
}

/// Those that stand beside a file, whoever made them.
inline std::vector<std::filesystem::path> Temporaries_Beside(const std::filesystem::path& target) {
  const auto begin =
      target.filename().native() + std::filesystem::path(std::string(temporary_mark)).native();
  const auto folder = target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
  std::vector<std::filesystem::path> found;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const auto name = entry->path().filename().native();
    if (name.size() <= begin.size() || !name.starts_with(begin)) continue;
    const auto behind = std::filesystem::path(name.substr(begin.size())).string();
    if (behind.find_first_not_of("0123456789") == std::string::npos) found.push_back(entry->path());
  }
  return found;
}

}  // namespace quorvex
