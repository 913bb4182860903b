// What the shell keeps from call to call.
#pragma once

#include <cstdint>
#include <memory>

#include "host/application.h"
#include "host/export.h"
#include "shell/form_face.h"
#include "shell/frmAbout.h"
#include "shell/frmGraphics.h"
#include "shell/frmMaxSD.h"

namespace quorvex {

/// Shared by all instances of the class. The host's one thread is the only one that comes here.
struct Shell_State {
  bool Started_Flag = false;  // from when the timer is armed until its work is done
  std::shared_ptr<Host_Application> application;
  std::int16_t retries = 0;  // of the work of the timer; never reset
  std::unique_ptr<frmGraphics> graphics;
  std::shared_ptr<frmAbout> about;
  std::shared_ptr<frmMaxSD> max_sd;
  std::shared_ptr<Form_Face> face;
};

Shell_State& Shell();

}  // namespace quorvex
