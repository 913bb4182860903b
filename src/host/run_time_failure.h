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
/// public method. `Failure_Number::interrupted` and `Failure_Number::out_of_memory` pass the
/// handlers inside a calculation: they say that somebody wants it to end, or that there is no room
/// to go on, and nothing about the operands.
class QUORVEX_API Run_Time_Failure : public std::runtime_error {
 public:
  Run_Time_Failure(Failure_Number number, const std::string& message);
  /// `out_of_memory` with a message that needs none: it stays where it is for ever.
  explicit Run_Time_Failure(const char* memory_message);
  Run_Time_Failure(const Run_Time_Failure&) = default;
  Run_Time_Failure& operator=(const Run_Time_Failure&) = default;
  Run_Time_Failure(Run_Time_Failure&&) = default;
  Run_Time_Failure& operator=(Run_Time_Failure&&) = default;
  ~Run_Time_Failure() override;

  Failure_Number number() const noexcept { return number_; }
  const char* what() const noexcept override;

 private:
  Failure_Number number_;
  const char* memory_message_ = nullptr;
};

/// Runs `body` and gives what it gives. Memory that can't be had and texts longer than the machine
/// can hold leave it as `out_of_memory`.
template <typename Body>
auto With_Memory_Failures(Body&& body) -> decltype(body()) {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    throw Run_Time_Failure("There is not enough memory.");
  } catch (const std::length_error&) {
    throw Run_Time_Failure("A text would grow too long.");
  }
}

/// Runs `body` and gives what it gives. A failure in it goes, as a `Run_Time_Failure`, to
/// `handler`, whose result is then given. Memory that can't be had and texts longer than the
/// machine can hold arrive as `out_of_memory`. For work with the host's own objects, where
/// `interrupted` is one more way for the host to refuse; calculations take one of those below.
template <typename Body, typename Handler>
auto With_Handler_For_All(Body&& body, Handler&& handler) -> decltype(body()) {
  try {
    return With_Memory_Failures(body);
  } catch (const Run_Time_Failure& failure) {
    return handler(failure);
  }
}

/// The same, but `interrupted` is thrown on. For what ends a whole call, and for work around calls:
/// nothing is calculated any more with what the handler gives.
template <typename Body, typename Handler>
auto With_Outer_Handler(Body&& body, Handler&& handler) -> decltype(body()) {
  return With_Handler_For_All(body, [&](const Run_Time_Failure& failure) {
    if (failure.number() == Failure_Number::interrupted) throw Run_Time_Failure(failure);
    return handler(failure);
  });
}

/// As `With_Outer_Handler`, but `out_of_memory` is thrown on as well. For the steps of a call: a
/// number that has no room must not become a token or a truth value that another step takes for
/// something about the number.
template <typename Body, typename Handler>
auto With_Handler(Body&& body, Handler&& handler) -> decltype(body()) {
  return With_Outer_Handler(body, [&](const Run_Time_Failure& failure) {
    if (failure.number() == Failure_Number::out_of_memory) throw Run_Time_Failure(failure);
    return handler(failure);
  });
}

}  // namespace quorvex
