#include "deadline.h"

#include <optional>
#include <string>
#include <string_view>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex::calc {
namespace {

constexpr std::string_view application = "Quorvex";
constexpr std::string_view section = "Calc";
constexpr std::string_view key = "TimeLimit";

// The office calls from one thread at a time.
std::shared_ptr<Call_Deadline>& Installed() {
  static std::shared_ptr<Call_Deadline> installed;
  return installed;
}

void Install(double seconds) {
  Installed() = std::make_shared<Call_Deadline>(seconds);
  Current_Platform().yielder = Installed();
}

}  // namespace

double Time_Limit() {
  const auto stored = Current_Platform().settings->read(application, section, key);
  if (!stored) return default_time_limit;
  return With_Outer_Handler(
      [&] {
        const double seconds = Text_To_Number(*stored);
        return seconds >= 0 ? seconds : default_time_limit;
      },
      [](const Run_Time_Failure&) { return default_time_limit; });
}

void Set_Time_Limit(double seconds) {
  Current_Platform().settings->write(application, section, key, Number_To_Text(seconds));
  Install(seconds);
}

Call_Deadline::Call_Deadline(double seconds)
    : Deadline(seconds > 0 ? std::optional(Seconds(seconds)) : std::nullopt) {}

Call_Deadline::~Call_Deadline() = default;

void Call_Deadline::yield() {
  if (runs_) Deadline::yield();
}

Timed_Call::Timed_Call() : deadline_(Installed()) {
  deadline_->begin_call();
  deadline_->runs_ = true;
}

Timed_Call::~Timed_Call() {
  deadline_->runs_ = false;
}

void Install_Deadline() {
  Install(Time_Limit());
}

}  // namespace quorvex::calc
