#include "io/input_file.h"

#include <sys/stat.h>
#include <unistd.h>

namespace quorvex {

bool Is_Input(const std::filesystem::path& file) {
  struct stat input {};
  struct stat there {};
  return ::fstat(STDIN_FILENO, &input) == 0 && ::stat(file.c_str(), &there) == 0 &&
         S_ISREG(there.st_mode) && input.st_dev == there.st_dev && input.st_ino == there.st_ino;
}

}  // namespace quorvex
