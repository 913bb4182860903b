#include "io/attended.h"

#include <unistd.h>

namespace quorvex {

bool Is_Attended() {
  if (::isatty(STDIN_FILENO) == 0 || ::isatty(STDOUT_FILENO) == 0) return false;
  const pid_t reader = ::tcgetpgrp(STDIN_FILENO);
  return reader < 0 || reader == ::getpgrp();
}

}  // namespace quorvex
