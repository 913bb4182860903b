// How much memory the process can still be given.
#include <algorithm>
#include <limits>

#include "host/platform/windows.h"
#include "host/platform/windows_api.h"

namespace quorvex {

namespace {

using Bytes = std::size_t;
constexpr Bytes unlimited = std::numeric_limits<Bytes>::max();

Bytes Left_Of_Job() {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  if (::QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits,
                                  sizeof limits, nullptr) == 0) {
    return unlimited;
  }
  Bytes left = unlimited;
  const DWORD flags = limits.BasicLimitInformation.LimitFlags;
  const auto bound = [&](DWORD flag, Bytes limit) {
    if ((flags & flag) != 0) left = std::min(left, limit);
  };
  bound(JOB_OBJECT_LIMIT_PROCESS_MEMORY, limits.ProcessMemoryLimit);
  bound(JOB_OBJECT_LIMIT_JOB_MEMORY, limits.JobMemoryLimit);
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
