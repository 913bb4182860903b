#include "io/call_guard.h"

#include "host/run_time_failure.h"

namespace quorvex {

void Call_Guard::begin_call() {
  forget_interruption();
  Deadline::begin_call();
}

void Call_Guard::yield() {
  if (is_interrupted())
    throw Run_Time_Failure(Failure_Number::interrupted, "The calculation was broken off.");
  Deadline::yield();
}

}  // namespace quorvex
