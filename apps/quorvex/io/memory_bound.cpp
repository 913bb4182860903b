#include "io/memory_bound.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "host/platform.h"

namespace quorvex {
namespace {

class Bounded_Gauge final : public Memory_Gauge {
 public:
  Bounded_Gauge(std::shared_ptr<Memory_Gauge> system, double bound)
      : system_(std::move(system)), bound_(bound) {}

  std::size_t available_bytes() override {
    const double left = std::max(bound_ - Used_Memory(), 0.0);
    const auto available = static_cast<double>(system_->available_bytes());
    return static_cast<std::size_t>(std::min(left, available));
  }

 private:
  std::shared_ptr<Memory_Gauge> system_;
  double bound_;
};

}  // namespace

void Bound_Memory(double bytes) {
  std::shared_ptr<Memory_Gauge>& gauge = Current_Platform().memory;
  gauge = std::make_shared<Bounded_Gauge>(gauge, bytes);
}

double Usual_Memory_Bound() {
  constexpr double two_gigabytes = 2.0 * 1024 * 1024 * 1024;
  return std::min(Memory_Of_Machine() / 2, two_gigabytes);
}

}  // namespace quorvex
