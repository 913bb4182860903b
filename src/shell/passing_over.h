// Statements whose failures don't matter.
#pragma once

#include <utility>

#include "host/run_time_failure.h"

namespace quorvex {

/// Runs a statement; one that fails is passed over.
template <typename Statement>
void Pass_Over_Failures(Statement&& statement) {
  With_Handler(std::forward<Statement>(statement), [](const Run_Time_Failure&) {});
}

}  // namespace quorvex
