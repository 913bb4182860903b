#include "host/run_time_failure.h"

#include "host/failure_hook.h"

namespace quorvex {

Run_Time_Failure::Run_Time_Failure(Failure_Number number, const std::string& message)
    : std::runtime_error(message), number_(number) {
  if (failure_hook != nullptr) failure_hook(*this);
}

// The text of the base is empty, for which the library has one that is never allocated.
Run_Time_Failure::Run_Time_Failure(const char* memory_message)
    : std::runtime_error(""),
      number_(Failure_Number::out_of_memory),
      memory_message_(memory_message) {
  if (failure_hook != nullptr) failure_hook(*this);
}

const char* Run_Time_Failure::what() const noexcept {
  return memory_message_ != nullptr ? memory_message_ : std::runtime_error::what();
}

// Defined here so that the library holds the one copy of the type information.
Run_Time_Failure::~Run_Time_Failure() = default;

}  // namespace quorvex
