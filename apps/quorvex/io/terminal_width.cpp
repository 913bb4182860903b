#include <sys/ioctl.h>
#include <unistd.h>

#include "io/terminal_width.h"

namespace quorvex {

std::optional<std::size_t> Terminal_Width() {
  constexpr std::size_t usual = 80;
  if (::isatty(STDOUT_FILENO) == 0) return std::nullopt;
  winsize size{};
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return usual;
  return size.ws_col;
}

}  // namespace quorvex
