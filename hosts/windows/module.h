// The library in the process that has loaded it.
#pragma once

#include "host/platform/windows_api.h"

#include <atomic>
#include <string>

namespace quorvex::windows {

/// Its handle, once it has been loaded.
HINSTANCE This_Module();

/// The path of its file.
std::wstring Module_File();

/// How many objects and locks keep it loaded.
std::atomic<long>& Uses();

/// Counts as one use as long as it lives.
class Use {
 public:
  Use() { ++Uses(); }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;
  ~Use() { --Uses(); }
};

}  // namespace quorvex::windows
