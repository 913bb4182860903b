// The time that a call may take: the office waits for each, and can't break one off.
#pragma once

#include <memory>

#include "host/platform.h"

namespace quorvex::calc {

/// In seconds; 0 for none.
inline constexpr double default_time_limit = 30;

/// The limit that the user has stored, or the default where none is stored that makes sense.
double Time_Limit();

/// Stores it. Fails as the settings store does.
void Set_Time_Limit(double seconds);

/// What looks at the clock. To be put in the platform's place for it.
std::shared_ptr<Yielder> Deadline_Yielder();

/// Makes the calculation of this scope fail with `interrupted` when the limit has passed. Scopes
/// may be nested: the outermost counts.
class Deadline {
 public:
  Deadline();
  Deadline(const Deadline&) = delete;
  Deadline& operator=(const Deadline&) = delete;
  ~Deadline();
};

}  // namespace quorvex::calc
