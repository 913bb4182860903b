// Ends a calculation that takes too long.
#pragma once

#include <chrono>
#include <optional>

#include "host/export.h"
#include "host/platform.h"

namespace quorvex {

using Seconds = std::chrono::duration<double>;

/// A yielder for hosts that give each call a limited time. A call that takes longer fails with
/// `Failure_Number::interrupted`. It keeps the time of one thread's calls.
class QUORVEX_API Deadline : public Yielder {
 public:
  /// Without a limit no call ends.
  explicit Deadline(std::optional<Seconds> limit);
  ~Deadline() override;

  /// Starts the time of a call.
  void begin_call();
  void yield() override;

 private:
  using Time = std::chrono::steady_clock;

  std::optional<Seconds> limit_;
  Time::time_point begin_ = Time::now();
};

}  // namespace quorvex
