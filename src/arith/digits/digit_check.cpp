#include "arith/digits/digit_check.h"

#include "host/run_time_failure.h"
#include "text/digit_runs.h"

namespace quorvex {

void Require_Digits(std::string_view text) {
  if (Has_Non_Digit(text)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An operand is no number.");
  }
}

}  // namespace quorvex
