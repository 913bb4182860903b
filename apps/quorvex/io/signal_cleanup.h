// Files that a broken-off run must not leave behind.
#pragma once

#include <filesystem>

namespace quorvex {

/// As long as it lives, a signal that ends the process (Ctrl-C, a closed terminal) takes the file
/// away first. There is one at a time.
class Signal_Cleanup {
 public:
  explicit Signal_Cleanup(const std::filesystem::path& file);
  ~Signal_Cleanup();
  Signal_Cleanup(const Signal_Cleanup&) = delete;
  Signal_Cleanup& operator=(const Signal_Cleanup&) = delete;
};

}  // namespace quorvex
