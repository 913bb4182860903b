// The time that a call may take: the office waits for each, and can't break one off.
#pragma once

#include <memory>

#include "host/deadline.h"

namespace quorvex::calc {

/// In seconds; 0 for none.
inline constexpr double default_time_limit = 30;

/// The limit that the user has stored, or the default where none is stored that makes sense.
double Time_Limit();

/// Stores it, for the calls to come. Fails as the settings store does.
void Set_Time_Limit(double seconds);

/// Ends calls at the limit, and nothing between them: dialogs may stay open as long as they will.
class Call_Deadline final : public Deadline {
 public:
  explicit Call_Deadline(double seconds);
  ~Call_Deadline() override;
  void yield() override;

 private:
  friend class Timed_Call;
  bool runs_ = false;
};

/// The scope of a call.
class Timed_Call {
 public:
  Timed_Call();
  Timed_Call(const Timed_Call&) = delete;
  Timed_Call& operator=(const Timed_Call&) = delete;
  ~Timed_Call();

 private:
  std::shared_ptr<Call_Deadline> deadline_;
};

/// Puts a deadline of the stored limit into the platform's place for it.
void Install_Deadline();

}  // namespace quorvex::calc
