// Ends a calculation that takes too long or that the user breaks off.
#include "io/call_guard.h"

#include <array>
#include <cstdio>

#include "host/run_time_failure.h"

namespace quorvex {
namespace {

std::string Timeout_Message(Seconds limit) {
  std::array<char, 64> number{};
  std::snprintf(number.data(), number.size(), "%g", limit.count());
  return "The calculation took longer than " + std::string(number.data()) + " s.";
}

}  // namespace

void Call_Guard::begin_call() {
  forget_interruption();
  if (limit_) begin_ = Clock::now();
}

void Call_Guard::yield() {
  if (is_interrupted())
    throw Run_Time_Failure(Failure_Number::interrupted, "The calculation was broken off.");
  if (limit_ && Clock::now() - begin_ > *limit_)
    throw Run_Time_Failure(Failure_Number::interrupted, Timeout_Message(*limit_));
}

}  // namespace quorvex
