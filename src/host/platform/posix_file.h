// Files by the system's own calls, which tell why something failed.
#pragma once

#include <filesystem>
#include <string>

namespace quorvex {

/// A file descriptor with an owner; below 0 for a file that could not be opened.
class Descriptor {
 public:
  explicit Descriptor(int number) noexcept : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  bool is_open() const noexcept { return number_ >= 0; }
  int number() const noexcept { return number_; }

 private:
  int number_;
};

/// Adds what a regular file holds to `contents`. Gives the system's error number, 0 if all went
/// well.
int Read_File(const std::filesystem::path& path, std::string& contents);

}  // namespace quorvex
