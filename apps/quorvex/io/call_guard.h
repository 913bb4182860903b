// Ends a calculation that takes too long or that the user breaks off.
#pragma once

#include <atomic>

#include "host/deadline.h"

namespace quorvex {

/// The tool's yielder. A broken-off calculation fails with `Failure_Number::interrupted`.
class Call_Guard final : public Deadline {
 public:
  using Deadline::Deadline;

  /// Starts the time of a call, and forgets an interruption that came before it.
  void begin_call();
  void yield() override;

  /// Asks the calculation to end. May be called from a signal handler.
  static void interrupt() noexcept { interrupted_.store(true); }
  static bool is_interrupted() noexcept { return interrupted_.load(); }
  static void forget_interruption() noexcept { interrupted_.store(false); }

 private:
  static inline std::atomic<bool> interrupted_ = false;
};

}  // namespace quorvex
