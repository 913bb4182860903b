// What the shell keeps from call to call.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>

#include "host/application.h"

namespace quorvex {

class Form_Face;
class frmAbout;
class frmMaxSD;
struct frmGraphics;

/// Shared by all instances of the class. Instances may be made, and told their host, in any thread:
/// what that touches (the first two flags, the application, the timer) is under `Shell_Guard`. The
/// rest belongs to the host's one thread.
struct Shell_State {
  bool Started_Flag = false;    // from when the timer is armed until its work is done
  bool arms_timer = true;       // when an instance of the class is made
  bool is_registering = false;  // right now
  int forms_shown = 0;          // right now
  std::shared_ptr<Host_Application> application;
  std::int16_t retries = 0;  // of the work of the timer; never reset
  std::shared_ptr<frmGraphics> graphics;
  std::shared_ptr<frmAbout> about;
  std::shared_ptr<frmMaxSD> max_sd;
  std::shared_ptr<Form_Face> face;
};

Shell_State& Shell();

/// Never held while the host is called: it may wait for a thread that makes an instance.
std::recursive_mutex& Shell_Guard();

}  // namespace quorvex
