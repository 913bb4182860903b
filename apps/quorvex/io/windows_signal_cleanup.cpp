#include <mutex>
#include <string>

#include "host/platform/windows_api.h"
#include "io/signal_cleanup.h"

namespace quorvex {
namespace {

// The console calls from a thread of its own.
std::mutex guard;
std::wstring file_to_remove;

// What ends the process comes after this.
extern "C" BOOL WINAPI Remove_Before_End(DWORD /*event*/) {
  const std::lock_guard lock(guard);
  ::DeleteFileW(file_to_remove.c_str());
  return FALSE;
}

}  // namespace

Signal_Cleanup::Signal_Cleanup(const std::filesystem::path& file) {
  const std::lock_guard lock(guard);
  file_to_remove = file.wstring();
  ::SetConsoleCtrlHandler(&Remove_Before_End, TRUE);
}

Signal_Cleanup::~Signal_Cleanup() {
  ::SetConsoleCtrlHandler(&Remove_Before_End, FALSE);
}

}  // namespace quorvex
