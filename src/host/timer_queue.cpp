// Timers that run when the host's thread asks for what is due.
#include "host/timer_queue.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace quorvex {

namespace {

using Moment = std::chrono::steady_clock::time_point;

/// What a timer and the queue share. `run_due` holds on to it during the call, so that a call may
/// destroy its own timer.
struct Timer_State {
  std::function<void()> call;
  Timer_Clock clock;
  std::optional<Moment> due;
};

class Queued_Timer final : public Timer {
 public:
  explicit Queued_Timer(std::shared_ptr<Timer_State> state) : state_(std::move(state)) {}
  Queued_Timer(const Queued_Timer&) = delete;
  Queued_Timer& operator=(const Queued_Timer&) = delete;
  ~Queued_Timer() override { state_->due.reset(); }

  void arm(std::chrono::milliseconds delay) override {
    // Beyond this the clock's own count would overflow.
    constexpr std::chrono::milliseconds longest = std::chrono::hours(24 * 365);
    state_->due = state_->clock() + std::min(delay, longest);
  }
  void cancel() override { state_->due.reset(); }

 private:
  std::shared_ptr<Timer_State> state_;
};

class Queue final : public Timer_Service {
 public:
  explicit Queue(Timer_Clock clock) : clock_(std::move(clock)) {}

  std::unique_ptr<Timer> make(std::function<void()> call) override {
    std::erase_if(timers_, [](const auto& timer) { return timer.expired(); });
    auto state = std::make_shared<Timer_State>(Timer_State{std::move(call), clock_, {}});
    timers_.push_back(state);
    return std::make_unique<Queued_Timer>(std::move(state));
  }

  void run_due() override {
    const Moment now = clock_();
    for (const auto& timer : due_at(now)) {
      // An earlier call of this round may have cancelled or moved it.
      if (!timer->due || *timer->due > now) continue;
      timer->due.reset();
      timer->call();
    }
  }

 private:
  std::vector<std::shared_ptr<Timer_State>> due_at(Moment now) const {
    std::vector<std::shared_ptr<Timer_State>> due;
    for (const auto& timer : timers_) {
      auto state = timer.lock();
      if (state && state->due && *state->due <= now) due.push_back(std::move(state));
    }
    std::ranges::stable_sort(due, {}, [](const auto& state) { return *state->due; });
    return due;
  }

  Timer_Clock clock_;
  std::vector<std::weak_ptr<Timer_State>> timers_;
};

}  // namespace

std::shared_ptr<Timer_Service> Timer_Queue(Timer_Clock clock) {
  return std::make_shared<Queue>(std::move(clock));
}

}  // namespace quorvex
