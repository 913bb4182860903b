// How failures cross the border: as numbers and texts, never as C++ exceptions.
#pragma once

#include <exception>
#include <optional>
#include <string>

#include "com.h"
#include "host/run_time_failure.h"

namespace quorvex::windows {

/// A call that can't be made as it was written. `argument` is the place in the caller's own list of
/// arguments.
struct Refused_Call {
  HRESULT status;
  unsigned argument = 0;
};

/// What a body was left by.
struct Failure {
  HRESULT status = E_FAIL;
  std::string message;  // empty for a refused call
  unsigned argument = 0;
};

/// The status that stands for a run-time failure of that number.
inline HRESULT Status_Of(int number) {
  return static_cast<HRESULT>(0x800A0000u | static_cast<unsigned>(number & 0xFFFF));
}

/// What the exception that is being handled means.
Failure Current_Failure() noexcept;

/// Runs `body`; nothing if all went well.
template <typename Body>
std::optional<Failure> Guarded(Body&& body) noexcept {
  try {
    body();
    return std::nullopt;
  } catch (...) {
    return Current_Failure();
  }
}

/// The same where only the status counts.
template <typename Body>
HRESULT Status_Of_Body(Body&& body) noexcept {
  const auto failure = Guarded(body);
  return failure ? failure->status : S_OK;
}

/// Tells a caller of Invoke.
HRESULT Tell(const Failure& failure, EXCEPINFO* exception, UINT* argument) noexcept;

/// Tells a caller of a method of the interface, who asks the thread's error object for more.
HRESULT Tell(const Failure& failure) noexcept;

/// Fails where the system does not do what it was asked for.
void Require(HRESULT status, const char* what);

}  // namespace quorvex::windows
