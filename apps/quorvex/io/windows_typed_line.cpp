#include <unistd.h>

#include <cerrno>

#include "io/call_guard.h"
#include "io/descriptor.h"
#include "io/typed_line.h"

namespace quorvex {

std::optional<std::string> Typed_Line() {
  std::string line;
  while (!Call_Guard::is_interrupted()) {
    char character = 0;
    const ssize_t got = Read_Some(STDIN_FILENO, &character, 1);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return std::nullopt;
    if (character == '\n') return line;
    if (character != '\r') line += character;
  }
  return std::nullopt;
}

}  // namespace quorvex
