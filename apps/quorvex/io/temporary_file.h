// Files that take the place of others once they are whole.
#pragma once

#include <filesystem>

#include "io/signal_cleanup.h"

namespace quorvex {

/// An empty file beside another one: only within one folder a renaming replaces a file as a whole.
/// What runs that were killed have left there is removed. If it doesn't take the other's place, it
/// goes with this object, or with the process that a signal ends.
///
/// All throw `std::system_error` if the system can't do it.
class Temporary_File {
 public:
  explicit Temporary_File(const std::filesystem::path& target);
  ~Temporary_File();
  Temporary_File(const Temporary_File&) = delete;
  Temporary_File& operator=(const Temporary_File&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Once what it holds is on the disk, so that a machine that goes off leaves the old file or the
  /// new one.
  void take_place();

 private:
  std::filesystem::path target_;
  std::filesystem::path path_;
  int lock_ = -1;  // tells others that somebody is at work on it
  Signal_Cleanup cleanup_;
};

}  // namespace quorvex
