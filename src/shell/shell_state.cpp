#include "shell/shell_state.h"

#include <cstddef>
#include <new>

#include "frame/class/add_in.h"

namespace quorvex {

Shell_State& Shell() {
  // Never destroyed: instances of the class may be made until the process ends. It stands in the
  // library's own data, so that nothing is left behind where the library is unloaded before.
  alignas(Shell_State) static std::byte storage[sizeof(Shell_State)];
  static auto* const shell = new (storage) Shell_State();
  return *shell;
}

std::recursive_mutex& Shell_Guard() {
  alignas(std::recursive_mutex) static std::byte storage[sizeof(std::recursive_mutex)];
  static auto* const guard = new (storage) std::recursive_mutex();
  return *guard;
}

std::shared_ptr<Host_Application> Excel_App(const std::shared_ptr<Host_Application>& new_app,
                                            bool clear) {
  const std::scoped_lock lock(Shell_Guard());
  Shell_State& shell = Shell();
  if (new_app != nullptr) shell.application = new_app;
  if (clear) shell.application.reset();
  return shell.application;
}

}  // namespace quorvex
