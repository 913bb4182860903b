#include "host/failure_watch.h"

#include "host/failure_hook.h"

namespace quorvex {

namespace {

// Of no type that must be destroyed: a thread would then hold the library in the process.
thread_local constinit Failure_Watch* innermost = nullptr;

}  // namespace

Failure_Watch::Failure_Watch() noexcept : outer_(innermost) {
  innermost = this;
  failure_hook = &note;
}

Failure_Watch::~Failure_Watch() {
  innermost = outer_;
  if (outer_ == nullptr) failure_hook = nullptr;
}

void Failure_Watch::note(const Run_Time_Failure& failure) {
  std::optional<Run_Time_Failure>& seen = innermost->seen_;
  if (!seen || !Is_Bound(seen->number())) seen.emplace(failure);
}

}  // namespace quorvex
