// The defaults of POSIX systems.
#include "host/platform/posix.h"

#include <unistd.h>

#include "host/timer_queue.h"

namespace quorvex {

namespace {

class Silent_Yielder final : public Yielder {
 public:
  void yield() override {}
};

}  // namespace

Platform Default_Platform() {
  // The environment of a process doesn't change under it, so its locale is read once.
  return {.locale = Fixed_Locale(Environment_Locale()),
          .settings = File_Settings(Settings_Path()),
          .timers = Timer_Queue(),
          .message_box = Terminal_Message_Box(STDIN_FILENO, STDERR_FILENO),
          .yielder = std::make_shared<Silent_Yielder>(),
          .memory = System_Memory(),
          .letters = System_Letters(),
          .libraries = System_Libraries(),
          .clock = System_Clock(),
          .applications = No_Application()};
}

}  // namespace quorvex
