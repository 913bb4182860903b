#include "io/interrupts.h"

#include <csignal>

#include "io/call_guard.h"

namespace quorvex {
namespace {

extern "C" void Interrupt(int signal) {
  if (Call_Guard::is_interrupted()) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  Call_Guard::interrupt();
}

}  // namespace

void Catch_Interrupts() {
  struct sigaction action {};
  action.sa_handler = &Interrupt;
  ::sigemptyset(&action.sa_mask);
  ::sigaction(SIGINT, &action, nullptr);
}

}  // namespace quorvex
