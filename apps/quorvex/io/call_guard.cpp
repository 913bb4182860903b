#include "io/call_guard.h"

#include "host/run_time_failure.h"
#include "io/memory_bound.h"

namespace quorvex {

void Call_Guard::begin_call() {
  forget_interruption();
  Deadline::begin_call();
}

void Call_Guard::yield() {
  if (is_interrupted())
    throw Run_Time_Failure(Failure_Number::interrupted, "The calculation was broken off.");
  Deadline::yield();
  look_at_memory();
}

// Cells, texts and small numbers are many pieces too small to be asked for one by one, so what they
// come to is looked at on the way, which takes too long to be done at each step.
void Call_Guard::look_at_memory() {
  constexpr unsigned steps_between_looks = 1024;
  if (memory_bound_ == 0 || ++steps_ % steps_between_looks != 0) return;
  if (Used_Memory() <= memory_bound_) return;
  throw Run_Time_Failure(Failure_Number::out_of_memory,
                         "There is not enough memory: more than --memory allows is in use.");
}

}  // namespace quorvex
