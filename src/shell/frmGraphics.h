// A form that is never shown: it carries the timer.
#pragma once

#include <functional>
#include <memory>

#include "host/platform.h"

namespace quorvex {

/// A timer that goes off while it is enabled, once, after its interval.
class Timer_Control {
 public:
  explicit Timer_Control(std::function<void()> event);

  void set_Enabled(bool enabled);
  /// In milliseconds; the time begins anew. A timer never goes off before it has an interval.
  void set_Interval(int interval);

  /// Whether it will go off.
  bool is_armed() const { return enabled_ && interval_ > 0; }

 private:
  void arm();

  std::unique_ptr<Timer> timer_;
  int interval_ = 0;
  bool enabled_ = false;
};

struct frmGraphics {
  /// The timer calls `event`.
  explicit frmGraphics(std::function<void()> event);

  Timer_Control Timer1;
};

}  // namespace quorvex
