#include "shell/start_up.h"

#include "frame/class/add_in.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "shell/frmGraphics.h"
#include "shell/register_functions.h"
#include "shell/shell_state.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::string_view application = "Quorvex";
constexpr std::string_view section = "Options";
constexpr std::string_view key = "MaxSD";
// What a read gives for a setting that isn't there.
constexpr std::string_view absent = "N/A";
constexpr double factory_default = 100;
constexpr int first_delay = 500;  // milliseconds: the host is still loading the add-in

double Limit_Of(const std::string& stored) {
  return With_Handler([&] { return Text_To_Number(stored); },
                      [&](const Run_Time_Failure& failure) -> double {
                        throw Run_Time_Failure(failure.number(),
                                               "The stored default of significant digits is no "
                                               "number: \"" +
                                                   stored + "\".");
                      });
}

}  // namespace

std::optional<std::string> Stored_MaxSD() {
  auto stored = Current_Platform().settings->read(application, section, key);
  if (stored == absent) stored.reset();
  return stored;
}

void Load_Default_MaxSD() {
  if (const auto stored = Stored_MaxSD()) {
    Set_Default_MaxSD(Limit_Of(*stored));
  } else {
    Set_Default_MaxSD(factory_default);
    Store_Default_MaxSD();
  }
}

void Refresh_Default_MaxSD() {
  if (const auto stored = Stored_MaxSD()) {
    Set_Default_MaxSD(Limit_Of(*stored));
  } else {
    Store_Default_MaxSD();
  }
}

std::optional<std::string> Store_Default_MaxSD() {
  return With_Outer_Handler(
      []() -> std::optional<std::string> {
        Current_Platform().settings->write(application, section, key,
                                           Number_To_Text(Default_MaxSD()));
        return std::nullopt;
      },
      [](const Run_Time_Failure& failure) -> std::optional<std::string> { return failure.what(); });
}

void Leave_Registration_To_Host() {
  const std::scoped_lock lock(Shell_Guard());
  Shell_State& shell = Shell();
  shell.arms_timer = false;
  if (shell.graphics != nullptr) shell.graphics->Timer1.set_Enabled(false);
  shell.Started_Flag = false;
}

void Class_Initialize() {
  const std::scoped_lock lock(Shell_Guard());
  Load_Default_MaxSD();
  Shell_State& shell = Shell();
  if (!shell.arms_timer || shell.Started_Flag) return;
  shell.Started_Flag = true;
  if (shell.graphics == nullptr)
    shell.graphics = std::make_shared<frmGraphics>(&Register_Functions);
  shell.graphics->Timer1.set_Enabled(true);
  shell.graphics->Timer1.set_Interval(first_delay);
}

}  // namespace quorvex
