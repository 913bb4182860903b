#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "io/call_guard.h"
#include "io/typed_line.h"

namespace quorvex {
namespace {

// False when the user breaks off. The signal is held back from before it is asked for until the
// wait begins, lest one that comes in between be slept through.
bool Wait_For_Input() {
  sigset_t interruption;
  sigset_t before;
  ::sigemptyset(&interruption);
  ::sigaddset(&interruption, SIGINT);
  ::pthread_sigmask(SIG_BLOCK, &interruption, &before);
  pollfd input{STDIN_FILENO, POLLIN, 0};
  while (!Call_Guard::is_interrupted() && ::ppoll(&input, 1, nullptr, &before) < 0 &&
         errno == EINTR) {
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return !Call_Guard::is_interrupted();
}

}  // namespace

std::optional<std::string> Typed_Line() {
  std::string line;
  while (Wait_For_Input()) {
    char character = 0;
    const ssize_t got = ::read(STDIN_FILENO, &character, 1);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return std::nullopt;
    if (character == '\n') return line;
    if (character != '\r') line += character;
  }
  return std::nullopt;
}

}  // namespace quorvex
