#include "host/platform/windows_api.h"
// Needs what stands above.
#include <psapi.h>

#include "io/memory_bound.h"

namespace quorvex {

double Used_Memory() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  if (::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters) == 0) return 0;
  return static_cast<double>(counters.PagefileUsage);
}

double Memory_Of_Machine() {
  MEMORYSTATUSEX status{};
  status.dwLength = sizeof status;
  ::GlobalMemoryStatusEx(&status);
  return static_cast<double>(status.ullTotalPhys);
}

}  // namespace quorvex
