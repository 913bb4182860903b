// The time of the day by the user's time zone.
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"

namespace quorvex {

namespace {

class Local_Clock final : public Clock {
 public:
  double time_of_day() override {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    constexpr double seconds_a_day = 86400;
    return ((now.wHour * 60 + now.wMinute) * 60 + now.wSecond) / seconds_a_day;
  }
};

}  // namespace

std::shared_ptr<Clock> System_Clock() {
  return std::make_shared<Local_Clock>();
}

}  // namespace quorvex
