#include "shell/register_functions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "frame/class/add_in.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "shell/frmGraphics.h"
#include "shell/passing_over.h"
#include "shell/registration_table.h"
#include "shell/shell_state.h"

namespace quorvex {
namespace {

constexpr std::string_view add_in_file = "Quorvex.xla";
// What the host and its automation layer say while they can't answer yet.
constexpr std::array<int, 3> not_ready = {429, 50290, 40040};
constexpr int quick_retries = 20;
constexpr int last_retry = 42;
constexpr int later_delay = 5000;  // milliseconds
// A host of this version fails for good, and is left alone.
constexpr std::int32_t hopeless_version = 10;

// What one run of the timer's event has found out about the host.
struct Attempt {
  std::shared_ptr<Host_Application> application;
  std::int32_t version = 0;
};

std::int32_t Leading_Number(const std::string& text) {
  const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
  double number = 0;
  std::from_chars(text.data() + start, text.data() + text.size(), number);
  // A number may also be spelt "inf" or "nan" there, which no version is.
  return To_Int32(std::isfinite(number) ? number : 0);
}

void Show_Work(Host_Application& application, bool on) {
  application.set_DisplayAlerts(on);
  application.set_ScreenUpdating(on);
}

bool Is_Installed(Host_Application& application) {
  const auto add_ins = application.addins();
  while (const auto add_in = add_ins->next()) {
    if (add_in->Name() == add_in_file && add_in->installed()) return true;
  }
  return false;
}

// True if the functions are to be described.
bool Attach(Attempt& attempt) {
  attempt.application = Excel_App(nullptr, false);
  if (attempt.application == nullptr) {
    attempt.application = Current_Platform().applications->running();
  }
  attempt.version = Leading_Number(attempt.application->version());
  Show_Work(*attempt.application, false);
  return Is_Installed(*attempt.application);
}

// Each statement for itself, since the host may refuse any of them.
void Restore(Host_Application* application) {
  if (application == nullptr) return;
  Pass_Over_All_Failures([&] { application->set_DisplayAlerts(true); });
  Pass_Over_All_Failures([&] { application->set_ScreenUpdating(true); });
}

// Sets the timer going, or at rest. While the flag stands, no instance arms it.
void Settle(bool is_armed, bool started) {
  const std::scoped_lock lock(Shell_Guard());
  Shell().graphics->Timer1.set_Enabled(is_armed);
  Shell().Started_Flag = started;
}

void Give_Up(const Attempt& attempt) {
  Settle(false, true);
  Restore(attempt.application.get());
  Settle(false, false);
}

void Try_Later(const Attempt& attempt) {
  Shell_State& shell = Shell();
  if (shell.retries < std::numeric_limits<std::int16_t>::max()) ++shell.retries;
  Settle(true, true);
  if (shell.retries < quick_retries) return;
  {
    const std::scoped_lock lock(Shell_Guard());
    shell.graphics->Timer1.set_Interval(later_delay);
  }
  if (shell.retries >= last_retry) Give_Up(attempt);
}

void Handle(const Attempt& attempt, Failure_Number number) {
  if (attempt.version == hopeless_version) return;
  const bool may_come = std::ranges::find(not_ready, static_cast<int>(number)) != not_ready.end();
  may_come ? Try_Later(attempt) : Give_Up(attempt);
}

void Describe_Functions(Host_Application& application) {
  const std::string prefix = std::string(add_in_file) + "!";
  for (const Registration& row : Registration_Table()) {
    Pass_Over_All_Failures([&] {
      application.MacroOptions(prefix + std::string(row.macro), row.description, Missing, Missing,
                               Missing, Missing, row.category);
    });
  }
}

// Says so as long as it is in scope.
class Registering {
 public:
  Registering() { Shell().is_registering = true; }
  ~Registering() { Shell().is_registering = false; }
  Registering(const Registering&) = delete;
  Registering& operator=(const Registering&) = delete;
};

}  // namespace

void Register_Functions() {
  const Registering registering;
  Settle(false, true);
  Attempt attempt;
  // Nothing is calculated here that anybody could break off: every failure is the host's refusal.
  const bool is_attached = With_Handler_For_All([&] { return Attach(attempt); },
                                                [&](const Run_Time_Failure& failure) {
                                                  Handle(attempt, failure.number());
                                                  return false;
                                                });
  // Where the add-in isn't installed the flag stays, which keeps later instances from asking again.
  if (!is_attached) return;
  Describe_Functions(*attempt.application);
  Restore(attempt.application.get());
  Settle(false, false);
}

}  // namespace quorvex
