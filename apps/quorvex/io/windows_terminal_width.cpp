#include <unistd.h>

#include "host/platform/windows_api.h"
#include "io/attended.h"
#include "io/terminal_width.h"

namespace quorvex {

std::optional<std::size_t> Terminal_Width() {
  constexpr std::size_t usual = 80;
  if (!Is_Terminal(STDOUT_FILENO)) return std::nullopt;
  CONSOLE_SCREEN_BUFFER_INFO screen{};
  if (::GetConsoleScreenBufferInfo(::GetStdHandle(STD_OUTPUT_HANDLE), &screen) == 0) return usual;
  const int columns = screen.srWindow.Right - screen.srWindow.Left + 1;
  return columns > 0 ? static_cast<std::size_t>(columns) : usual;
}

}  // namespace quorvex
