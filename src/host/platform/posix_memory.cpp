// How much memory the process can still be given.
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <sstream>
#include <string>

#include "host/platform/posix.h"
#include "host/platform/posix_file.h"

namespace quorvex {

namespace {

using Bytes = std::size_t;
constexpr Bytes unlimited = std::numeric_limits<Bytes>::max();

/// Empty if the file can't be read.
std::string Contents_Of(const std::filesystem::path& path) {
  std::string contents;
  return Read_File(path, contents) == 0 ? contents : std::string();
}

Bytes Left_Of(Bytes limit, Bytes used) {
  return limit > used ? limit - used : 0;
}

/// The number behind a word in a text of lines such as "MemAvailable:  123 kB".
std::optional<Bytes> Number_Behind(const std::string& text, const std::string& word) {
  std::istringstream lines(text);
  Bytes number = 0;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string first;
    if (words >> first && first == word && words >> number) return number;
  }
  return std::nullopt;
}

std::optional<Bytes> First_Number(const std::filesystem::path& path) {
  std::istringstream words(Contents_Of(path));
  Bytes number = 0;
  if (words >> number) return number;
  return std::nullopt;
}

Bytes Left_Of_System() {
  const auto kilobytes = Number_Behind(Contents_Of("/proc/meminfo"), "MemAvailable:");
  return kilobytes ? *kilobytes * 1024 : unlimited;
}

Bytes Left_Of_Address_Space() {
  rlimit limit{};
  if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return unlimited;
  const auto page = static_cast<Bytes>(sysconf(_SC_PAGESIZE));
  return Left_Of(limit.rlim_cur, First_Number("/proc/self/statm").value_or(0) * page);
}

Bytes Left_Of_Group(const std::filesystem::path& folder) {
  const auto limit = First_Number(folder / "memory.max");  // the word "max" where there is none
  const auto used = First_Number(folder / "memory.current");
  if (!limit || !used) return unlimited;
  // Cached files count as used, but give way when memory is asked for.
  const auto statistics = Contents_Of(folder / "memory.stat");
  const Bytes cached = Number_Behind(statistics, "inactive_file").value_or(0);
  return Left_Of(*limit, Left_Of(*used, cached));
}

/// Each group is bound by its own limit and by those of the groups above it.
Bytes Left_Of_Groups() {
  const std::filesystem::path root = "/sys/fs/cgroup";
  std::istringstream lines(Contents_Of("/proc/self/cgroup"));
  Bytes left = Left_Of_Group(root);
  for (std::string line; std::getline(lines, line);) {
    constexpr std::string_view unified = "0::/";
    if (!line.starts_with(unified)) continue;
    const std::filesystem::path own = line.substr(unified.size());
    std::filesystem::path folder = root;
    for (const auto& name : own) left = std::min(left, Left_Of_Group(folder /= name));
  }
  return left;
}

class System_Gauge final : public Memory_Gauge {
 public:
  Bytes available_bytes() override {
    return std::min({Left_Of_System(), Left_Of_Address_Space(), Left_Of_Groups()});
  }
};

}  // namespace

std::shared_ptr<Memory_Gauge> System_Memory() {
  return std::make_shared<System_Gauge>();
}

}  // namespace quorvex
