// The time of the day by the user's time zone.
#include <ctime>

#include "host/platform/posix.h"

namespace quorvex {

namespace {

class Local_Clock final : public Clock {
 public:
  double time_of_day() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) return 0;
    constexpr double seconds_a_day = 86400;
    // A leap second would make the day longer than it is.
    const int second = local.tm_sec < 60 ? local.tm_sec : 59;
    return ((local.tm_hour * 60 + local.tm_min) * 60 + second) / seconds_a_day;
  }
};

}  // namespace

std::shared_ptr<Clock> System_Clock() {
  return std::make_shared<Local_Clock>();
}

}  // namespace quorvex
