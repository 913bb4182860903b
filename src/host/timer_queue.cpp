// Timers that run when the host's thread asks for what is due.
#include "host/timer_queue.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace quorvex {

namespace {

using Moment = std::chrono::steady_clock::time_point;

/// What a timer and the queue share. `run_due` holds on to it during the call, so that a call may
/// destroy its own timer. Timers are armed by any thread, and run by one.
class Timer_State {
 public:
  Timer_State(std::function<void()> call, Timer_Clock clock)
      : call_(std::move(call)), clock_(std::move(clock)) {}

  void call() const { call_(); }
  void arm(std::chrono::milliseconds delay) { set(clock_() + delay); }
  void cancel() { set(std::nullopt); }

  std::optional<Moment> due() const {
    const std::scoped_lock lock(guard_);
    return due_;
  }
  /// Whether it was due, which it is no longer.
  bool take(Moment now) {
    const std::scoped_lock lock(guard_);
    if (!due_ || *due_ > now) return false;
    due_.reset();
    return true;
  }

 private:
  void set(std::optional<Moment> due) {
    const std::scoped_lock lock(guard_);
    due_ = due;
  }

  const std::function<void()> call_;
  const Timer_Clock clock_;
  mutable std::mutex guard_;
  std::optional<Moment> due_;
};

class Queued_Timer final : public Timer {
 public:
  explicit Queued_Timer(std::shared_ptr<Timer_State> state) : state_(std::move(state)) {}
  Queued_Timer(const Queued_Timer&) = delete;
  Queued_Timer& operator=(const Queued_Timer&) = delete;
  ~Queued_Timer() override { state_->cancel(); }

  void arm(std::chrono::milliseconds delay) override {
    // Beyond this the clock's own count would overflow.
    constexpr std::chrono::milliseconds longest = std::chrono::hours(24 * 365);
    state_->arm(std::min(delay, longest));
  }
  void cancel() override { state_->cancel(); }

 private:
  std::shared_ptr<Timer_State> state_;
};

class Queue final : public Timer_Service {
 public:
  explicit Queue(Timer_Clock clock) : clock_(std::move(clock)) {}

  std::unique_ptr<Timer> make(std::function<void()> call) override {
    auto state = std::make_shared<Timer_State>(std::move(call), clock_);
    const std::scoped_lock lock(guard_);
    std::erase_if(timers_, [](const auto& timer) { return timer.expired(); });
    timers_.push_back(state);
    return std::make_unique<Queued_Timer>(std::move(state));
  }

  void run_due() override {
    const Moment now = clock_();
    for (const auto& timer : due_at(now)) {
      // An earlier call of this round may have cancelled or moved it.
      if (timer->take(now)) timer->call();
    }
  }

 private:
  std::vector<std::shared_ptr<Timer_State>> due_at(Moment now) const {
    std::vector<std::pair<Moment, std::shared_ptr<Timer_State>>> found;
    {
      const std::scoped_lock lock(guard_);
      for (const auto& timer : timers_) {
        auto state = timer.lock();
        const auto due = state ? state->due() : std::nullopt;
        if (due && *due <= now) found.emplace_back(*due, std::move(state));
      }
    }
    std::ranges::stable_sort(found, {}, [](const auto& timer) { return timer.first; });
    std::vector<std::shared_ptr<Timer_State>> due;
    due.reserve(found.size());
    for (auto& timer : found) due.push_back(std::move(timer.second));
    return due;
  }

  Timer_Clock clock_;
  mutable std::mutex guard_;
  std::vector<std::weak_ptr<Timer_State>> timers_;
};

}  // namespace

std::shared_ptr<Timer_Service> Timer_Queue(Timer_Clock clock) {
  return std::make_shared<Queue>(std::move(clock));
}

}  // namespace quorvex
