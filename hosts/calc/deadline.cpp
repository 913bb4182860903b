#include "deadline.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <optional>
#include <string>

#include "host/conversions.h"
#include "host/run_time_failure.h"

namespace quorvex::calc {
namespace {

using Time = std::chrono::steady_clock;

constexpr std::string_view application = "Quorvex";
constexpr std::string_view section = "Calc";
constexpr std::string_view key = "TimeLimit";

// The office calls from one thread at a time, but not always from the same.
struct State {
  int depth = 0;
  std::optional<Time::time_point> started;
  double limit = default_time_limit;
};

State& Now() {
  static State state;
  return state;
}

class Looking_At_The_Clock final : public Yielder {
 public:
  // The clock is looked at before anything else happens: a call that yields is a long one.
  void yield() override {
    const State& now = Now();
    if (now.depth == 0 || now.limit <= 0) return;
    const std::chrono::duration<double> passed = Time::now() - *now.started;
    if (passed.count() < now.limit) return;
    throw Run_Time_Failure(Failure_Number::interrupted,
                           "The calculation has taken longer than the time limit.");
  }
};

}  // namespace

double Time_Limit() {
  const auto stored = Current_Platform().settings->read(application, section, key);
  if (!stored) return default_time_limit;
  return With_Handler(
      [&] {
        const double seconds = Text_To_Number(*stored);
        return seconds >= 0 ? seconds : default_time_limit;
      },
      [](const Run_Time_Failure&) { return default_time_limit; });
}

void Set_Time_Limit(double seconds) {
  Current_Platform().settings->write(application, section, key, Number_To_Text(seconds));
  Now().limit = seconds;
}

std::shared_ptr<Yielder> Deadline_Yielder() {
  Now().limit = Time_Limit();
  return std::make_shared<Looking_At_The_Clock>();
}

Deadline::Deadline() {
  State& now = Now();
  if (now.depth++ == 0) now.started = Time::now();
}

Deadline::~Deadline() {
  --Now().depth;
}

}  // namespace quorvex::calc
