#include "elementary/series/arc_tangent_series.h"

#include <cstdint>
#include <utility>

#include "elementary/series/series.h"
#include "elementary/series/shortened_series.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr Series_Rule rule{.stride = 2,
                           .power_divisor = nullptr,
                           .term_divisor = [](std::uint64_t k) { return k; },
                           .ends_by_power = true,
                           .alternates = true};

}  // namespace

Step_Number ATan_Series(const Step_Number& x, const Steps& steps) {
  if (Is_Plain_Zero(x)) return x;
  Step_Number power = x;
  Step_Number sum = x;
  const Step_Number square = steps.product(x, x);
  Series_Counter k(1, steps);
  const Series_End end(steps.limit());
  Shortened_Series shortened(rule, square, steps.limit(), end.last_power());
  for (;;) {
    k.step();
    steps.multiply(power, square);
    power.negate();
    steps.add(sum, steps.quotient(power, k.value()));
    // No later term can change this token, and nobody waits for 2,147,483,647 digits of them.
    const bool goes_on = !power.is_token() && !power.is_zero();
    if (sum.is_token() && sum.text() == value_token && goes_on) break;
    if (end.is_reached(power)) break;
    if (auto rest = shortened.sum_from({power, sum, k.whole()})) return *std::move(rest);
  }
  return sum;
}

}  // namespace quorvex
