// The one exception of the engine.
#pragma once

#include <new>
#include <stdexcept>
#include <string>

#include "host/export.h"

namespace quorvex {

/// The host's error numbers, as far as the engine raises them. Failures of the host's own objects
/// carry any other number.
enum class Failure_Number : int {
  invalid_call = 5,
  overflow = 6,
  out_of_memory = 7,
  subscript_out_of_range = 9,
  type_mismatch = 13,
  too_complex = 16,
  interrupted = 18,
  no_application = 429,
};

/// A run-time failure: the host's error number, and a message that a user can act on.
///
/// A routine with a handler turns it into an error token; from every other routine it leaves the
/// public method. `Failure_Number::interrupted` passes every handler of a calculation, since it
/// says that somebody wants it to end, and nothing about the operands.
class QUORVEX_API Run_Time_Failure : public std::runtime_error {
 public:
  Run_Time_Failure(Failure_Number number, const std::string& message);
  Run_Time_Failure(const Run_Time_Failure&) = default;
  Run_Time_Failure& operator=(const Run_Time_Failure&) = default;
  Run_Time_Failure(Run_Time_Failure&&) = default;
  Run_Time_Failure& operator=(Run_Time_Failure&&) = default;
  ~Run_Time_Failure() override;

  Failure_Number number() const noexcept { return number_; }

 private:
  Failure_Number number_;
};

/// Runs `body` and gives what it gives. Memory that can't be had and texts longer than the machine
/// can hold leave it as `out_of_memory`.
template <typename Body>
auto With_Memory_Failures(Body&& body) -> decltype(body()) {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "There is not enough memory.");
  } catch (const std::length_error&) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A text would grow too long.");
  }
}

/// Runs `body` and gives what it gives. A failure in it goes, as a `Run_Time_Failure`, to
/// `handler`, whose result is then given. Memory that can't be had and texts longer than the
/// machine can hold arrive as `out_of_memory`. For work with the host's own objects, where
/// `interrupted` is one more way for the host to refuse; calculations take `With_Handler`.
template <typename Body, typename Handler>
auto With_Handler_For_All(Body&& body, Handler&& handler) -> decltype(body()) {
  try {
    return With_Memory_Failures(body);
  } catch (const Run_Time_Failure& failure) {
    return handler(failure);
  }
}

/// The same, but `interrupted` is thrown on.
template <typename Body, typename Handler>
auto With_Handler(Body&& body, Handler&& handler) -> decltype(body()) {
  return With_Handler_For_All(body, [&](const Run_Time_Failure& failure) {
    if (failure.number() == Failure_Number::interrupted) throw Run_Time_Failure(failure);
    return handler(failure);
  });
}

/// As `With_Handler`, but `out_of_memory` is thrown on as well: for callers to whom the handler's
/// result would say something about the operand, such as that it is no number.
template <typename Body, typename Handler>
auto With_Handler_But_For_Memory(Body&& body, Handler&& handler) -> decltype(body()) {
  return With_Handler(body, [&](const Run_Time_Failure& failure) {
    if (failure.number() == Failure_Number::out_of_memory) throw Run_Time_Failure(failure);
    return handler(failure);
  });
}

}  // namespace quorvex
