// Timers that run when the host's thread asks for what is due.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "host/platform.h"

namespace quorvex {

using Timer_Clock = std::function<std::chrono::steady_clock::time_point()>;

/// A service whose timers go by `clock`. Each runs once at most in one `run_due`, the earliest
/// first. A failure that leaves a call leaves `run_due`; what else is due then waits for the next.
std::shared_ptr<Timer_Service> Timer_Queue(Timer_Clock clock = std::chrono::steady_clock::now);

}  // namespace quorvex
