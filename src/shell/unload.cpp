#include "shell/unload.h"

#include "host/run_time_failure.h"
#include "shell/frmAbout.h"
#include "shell/frmGraphics.h"
#include "shell/frmMaxSD.h"
#include "shell/shell_state.h"

namespace quorvex {
namespace {

bool Is_At_Work(const Shell_State& shell) {
  return shell.is_registering || shell.forms_shown > 0;
}

}  // namespace

bool Shell_Is_Busy() {
  const Shell_State& shell = Shell();
  return Is_At_Work(shell) || (shell.graphics != nullptr && shell.graphics->Timer1.is_armed()) ||
         (shell.about != nullptr && shell.about->is_loaded()) ||
         (shell.max_sd != nullptr && shell.max_sd->is_loaded());
}

void Shell_Shut_Down() {
  if (Is_At_Work(Shell()))
    throw Run_Time_Failure(Failure_Number::invalid_call, "Quorvex is still at work.");
  Shell() = Shell_State();
}

}  // namespace quorvex
