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
  /// Starts the time of the next formula of a worksheet, all of which one interruption ends.
  void begin_formula() { Deadline::begin_call(); }
  void yield() override;

  /// Ends calculations once the process holds more bytes than these.
  void bound_memory(double bytes) { memory_bound_ = bytes; }

  /// Asks the calculation to end. May be called from a signal handler.
  static void interrupt() noexcept { interrupted_.store(true); }
  static bool is_interrupted() noexcept { return interrupted_.load(); }
  static void forget_interruption() noexcept { interrupted_.store(false); }

 private:
  void look_at_memory();

  static inline std::atomic<bool> interrupted_ = false;

  double memory_bound_ = 0;  // 0 for none
  unsigned steps_ = 0;
};

}  // namespace quorvex
