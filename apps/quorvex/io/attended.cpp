#include "io/attended.h"

#include <unistd.h>

namespace quorvex {

bool Is_Terminal(int descriptor) {
  return ::isatty(descriptor) != 0;
}

bool Is_Attended() {
  if (!Is_Terminal(STDIN_FILENO) || !Is_Terminal(STDOUT_FILENO)) return false;
  const pid_t reader = ::tcgetpgrp(STDIN_FILENO);
  return reader < 0 || reader == ::getpgrp();
}

}  // namespace quorvex
