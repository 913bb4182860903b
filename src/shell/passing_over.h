// Statements whose failures don't matter.
#pragma once

#include <utility>

#include "host/run_time_failure.h"

namespace quorvex {

/// Runs a statement; one that fails is passed over. `interrupted` is thrown on: the statement may
/// make the host calculate, and the user may want that to end.
template <typename Statement>
void Pass_Over_Failures(Statement&& statement) {
  With_Outer_Handler(std::forward<Statement>(statement), [](const Run_Time_Failure&) {});
}

/// The same for statements that calculate nothing: one that fails is passed over, whatever the
/// number.
template <typename Statement>
void Pass_Over_All_Failures(Statement&& statement) {
  With_Handler_For_All(std::forward<Statement>(statement), [](const Run_Time_Failure&) {});
}

}  // namespace quorvex
