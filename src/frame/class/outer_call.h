// What every method of the class that calculates runs in.
#pragma once

#include "host/locale_of_call.h"
#include "host/run_time_failure.h"

namespace quorvex {

/// Runs `body` as one call from outside and gives what it gives: the user's locale is asked for
/// once at most, together with the conversion of the arguments by the catalogue, and memory that
/// can't be had leaves it as `out_of_memory`.
template <typename Body>
auto Outer_Call(Body&& body) -> decltype(body()) {
  const Locale_Of_Call locale;
  return With_Memory_Failures(body);
}

}  // namespace quorvex
