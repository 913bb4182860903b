// Environment variables and folders that last for a scope.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace quorvex {

/// Sets a variable, or unsets it, until the end of the scope.
class Variable_Guard {
 public:
  Variable_Guard(std::string name, const std::optional<std::string>& value)
      : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str())) before_ = before;
    set(value);
  }
  ~Variable_Guard() { set(before_); }
  Variable_Guard(const Variable_Guard&) = delete;
  Variable_Guard& operator=(const Variable_Guard&) = delete;

 private:
  void set(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
  }

  std::string name_;
  std::optional<std::string> before_;
};

/// An empty folder, removed with all it holds at the end of the scope.
class Temporary_Folder {
 public:
  Temporary_Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "quorvex.XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("There is no temporary folder.");
    path_ = name;
  }
  ~Temporary_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Temporary_Folder(const Temporary_Folder&) = delete;
  Temporary_Folder& operator=(const Temporary_Folder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// Writes a file in it, and gives its path.
  std::string write(const std::string& name, std::string_view text) const {
    const std::filesystem::path file = path_ / name;
    std::ofstream(file, std::ios::binary) << text;
    return file.string();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace quorvex
