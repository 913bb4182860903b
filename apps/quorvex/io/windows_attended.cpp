#include <io.h>
#include <unistd.h>

#include "host/platform/windows_api.h"
#include "io/attended.h"

namespace quorvex {

// The C library takes every device for a terminal, NUL as well.
bool Is_Terminal(int descriptor) {
  auto* const handle = reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
  DWORD mode = 0;
  return ::GetConsoleMode(handle, &mode) != 0;
}

bool Is_Attended() {
  return Is_Terminal(STDIN_FILENO) && Is_Terminal(STDOUT_FILENO);
}

}  // namespace quorvex
