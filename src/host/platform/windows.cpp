// The defaults of Windows.
#include "host/platform/windows.h"

namespace quorvex {

Platform Default_Platform() {
  return {.locale = User_Locale(),
          .settings = Registry_Settings(),
          .timers = Thread_Timers(),
          .message_box = Window_Message_Box(),
          .yielder = Break_Keys(),
          .memory = System_Memory(),
          .letters = System_Letters(),
          .libraries = System_Libraries(),
          .clock = System_Clock(),
          .applications = No_Application()};
}

}  // namespace quorvex
