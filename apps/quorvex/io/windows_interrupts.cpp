#include "host/platform/windows_api.h"
#include "io/call_guard.h"
#include "io/interrupts.h"

namespace quorvex {
namespace {

// What is not handled here ends the tool.
extern "C" BOOL WINAPI Interrupt(DWORD event) {
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
  if (Call_Guard::is_interrupted()) return FALSE;
  Call_Guard::interrupt();
  return TRUE;
}

}  // namespace

void Catch_Interrupts() {
  ::SetConsoleCtrlHandler(&Interrupt, TRUE);
}

}  // namespace quorvex
