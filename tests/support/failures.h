// Run-time failures as tests compare them.
#pragma once

#include <optional>
#include <utility>

#include "host/run_time_failure.h"

namespace quorvex {

/// The number of the failure that leaves `body`; nothing if none does.
template <typename Body>
std::optional<Failure_Number> Failure_Of(Body&& body) {
  try {
    std::forward<Body>(body)();
  } catch (const Run_Time_Failure& failure) {
    return failure.number();
  }
  return std::nullopt;
}

}  // namespace quorvex
