// The library in this process, its timers, and the settings that it reads.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "com.h"

namespace quorvex::windows {

/// Loads the library as its class is asked for, but makes no object.
bool Load_Library();

/// What the library's export says, asked until it is `wanted` or two seconds are over.
HRESULT Can_Unload(HRESULT wanted);

/// The library's calls of SetTimer, from now on: each waits for a tenth of a second at most.
class Hasty_Timers {
 public:
  Hasty_Timers();
  Hasty_Timers(const Hasty_Timers&) = delete;
  Hasty_Timers& operator=(const Hasty_Timers&) = delete;
  ~Hasty_Timers();

  /// What was asked for, in milliseconds.
  const std::vector<UINT>& intervals() const;
};

/// Handles what comes in until `is_done`, or the time is over; gives `is_done`.
template <typename Condition>
bool Pump(Condition is_done, DWORD milliseconds = 10000) {
  const ULONGLONG end = ::GetTickCount64() + milliseconds;
  while (!is_done() && ::GetTickCount64() < end) {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) ::DispatchMessageW(&message);
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  return is_done();
}

inline void Pump_For(DWORD milliseconds) {
  Pump([] { return false; }, milliseconds);
}

/// The stored default limit, put back at the end.
class Stored_Limit {
 public:
  Stored_Limit();
  Stored_Limit(const Stored_Limit&) = delete;
  Stored_Limit& operator=(const Stored_Limit&) = delete;
  ~Stored_Limit();

  std::optional<std::string> text() const;
  void set(const std::optional<std::string>& text) const;

 private:
  std::optional<std::string> before_;
};

}  // namespace quorvex::windows
