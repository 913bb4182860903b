#include "host/run_time_failure.h"

#include "host/failure_hook.h"

namespace quorvex {

Run_Time_Failure::Run_Time_Failure(Failure_Number number, const std::string& message)
    : std::runtime_error(message), number_(number) {
  if (failure_hook != nullptr) failure_hook(*this);
}

// Defined here so that the library holds the one copy of the type information.
Run_Time_Failure::~Run_Time_Failure() = default;

}  // namespace quorvex
