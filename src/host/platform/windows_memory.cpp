// How much memory the process can still be given.
#include <algorithm>
#include <limits>

#include "host/platform/windows.h"
#include "host/platform/windows_api.h"

#include <psapi.h>

namespace quorvex {

namespace {

using Bytes = std::size_t;
constexpr Bytes unlimited = std::numeric_limits<Bytes>::max();

Bytes Used_By_Process() {
  PROCESS_MEMORY_COUNTERS used{};
  return ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &used, sizeof used) == 0
             ? 0
             : used.PagefileUsage;
}

// Older systems do not tell what the other processes of the job use.
Bytes Used_By_Job() {
  constexpr auto memory_usage = static_cast<JOBOBJECTINFOCLASS>(28);
  struct {
    ULONGLONG now;
    ULONGLONG peak;
  } used{};
  return ::QueryInformationJobObject(nullptr, memory_usage, &used, sizeof used, nullptr) == 0
             ? Used_By_Process()
             : static_cast<Bytes>(used.now);
}

Bytes Left_Of_Job() {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  if (::QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits,
                                  sizeof limits, nullptr) == 0) {
    return unlimited;
  }
  Bytes left = unlimited;
  const DWORD flags = limits.BasicLimitInformation.LimitFlags;
  const auto bound = [&](DWORD flag, Bytes limit, Bytes (*used)()) {
    if ((flags & flag) != 0) left = std::min(left, limit - std::min(limit, used()));
  };
  bound(JOB_OBJECT_LIMIT_PROCESS_MEMORY, limits.ProcessMemoryLimit, Used_By_Process);
  bound(JOB_OBJECT_LIMIT_JOB_MEMORY, limits.JobMemoryLimit, Used_By_Job);
  return left;
}

class System_Gauge final : public Memory_Gauge {
 public:
  Bytes available_bytes() override {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    if (::GlobalMemoryStatusEx(&status) == 0) return unlimited;
    // Memory is promised only as far as the page file can hold it, so both bounds tell the truth.
    return std::min({static_cast<Bytes>(status.ullAvailPageFile),
                     static_cast<Bytes>(status.ullAvailVirtual), Left_Of_Job()});
  }
};

}  // namespace

std::shared_ptr<Memory_Gauge> System_Memory() {
  return std::make_shared<System_Gauge>();
}

}  // namespace quorvex
