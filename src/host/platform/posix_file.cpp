// Files by the system's own calls.
#include "host/platform/posix_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace quorvex {

Descriptor::~Descriptor() {
  if (is_open()) close(number_);
}

int Read_File(const std::filesystem::path& path, std::string& contents) {
  // Without waiting: the name could be that of a pipe.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.is_open()) return errno;
  struct stat status {};
  if (fstat(file.number(), &status) != 0) return errno;
  if (S_ISDIR(status.st_mode)) return EISDIR;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  char buffer[4096];
  for (;;) {
    const ssize_t got = read(file.number(), buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) return 0;
    contents.append(buffer, static_cast<std::size_t>(got));
  }
}

}  // namespace quorvex
