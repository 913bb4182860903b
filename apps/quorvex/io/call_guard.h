// Ends a calculation that takes too long or that the user breaks off.
#pragma once

#include <atomic>
#include <chrono>
#include <optional>

#include "host/platform.h"

namespace quorvex {

using Seconds = std::chrono::duration<double>;

/// The tool's yielder. A broken-off calculation fails with `Failure_Number::interrupted`.
class Call_Guard : public Yielder {
 public:
  explicit Call_Guard(std::optional<Seconds> limit) : limit_(limit) {}

  /// Starts the time of a call, and forgets an interruption that came before it.
  void begin_call();
  void yield() override;

  /// Asks the calculation to end. May be called from a signal handler.
  static void interrupt() noexcept { interrupted_.store(true); }
  static bool is_interrupted() noexcept { return interrupted_.load(); }
  static void forget_interruption() noexcept { interrupted_.store(false); }

 private:
  using Clock = std::chrono::steady_clock;

  static inline std::atomic<bool> interrupted_ = false;
  std::optional<Seconds> limit_;
  Clock::time_point begin_ = Clock::now();
};

}  // namespace quorvex
