#include "shell/frmGraphics.h"

#include <chrono>
#include <utility>

namespace quorvex {

Timer_Control::Timer_Control(std::function<void()> event)
    : timer_(Current_Platform().timers->make(std::move(event))) {}

void Timer_Control::set_Enabled(bool enabled) {
  enabled_ = enabled;
  arm();
}

void Timer_Control::set_Interval(int interval) {
  interval_ = interval;
  arm();
}

void Timer_Control::arm() {
  if (is_armed()) {
    timer_->arm(std::chrono::milliseconds(interval_));
  } else {
    timer_->cancel();
  }
}

frmGraphics::frmGraphics(std::function<void()> event) : Timer1(std::move(event)) {}

}  // namespace quorvex
