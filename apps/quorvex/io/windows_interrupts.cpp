#include <atomic>

#include "host/platform/windows_api.h"
#include "io/call_guard.h"
#include "io/interrupts.h"

namespace quorvex {
namespace {

std::atomic<ULONGLONG> last_time = 0;

// What is not handled here ends the tool. One press may be told of twice, by the console and by the
// terminal that it stands in.
extern "C" BOOL WINAPI Interrupt(DWORD event) {
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
  constexpr ULONGLONG milliseconds_of_a_press = 300;
  const ULONGLONG now = ::GetTickCount64();
  const bool is_same_press = now - last_time.exchange(now) < milliseconds_of_a_press;
  if (Call_Guard::is_interrupted() && !is_same_press) return FALSE;
  Call_Guard::interrupt();
  return TRUE;
}

}  // namespace

void Catch_Interrupts() {
  ::SetConsoleCtrlHandler(&Interrupt, TRUE);
}

}  // namespace quorvex
