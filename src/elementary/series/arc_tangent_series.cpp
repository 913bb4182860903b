#include "elementary/series/arc_tangent_series.h"

#include <cstdint>

#include "elementary/series/series.h"
#include "elementary/series/shortened_series.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr Series_Rule rule{.stride = 2,
                           .divisor = [](std::uint64_t k) { return k; },
                           .keeps_power = true,
                           .ends_by_power = true,
                           .alternates = true};

}  // namespace

NumberText ATan_Series(const NumberText& x, double maxSD) {
  if (x == "0") return x;
  Step_Number power(x);
  Step_Number sum(x);
  const Step_Number square = Product(power, power, maxSD);
  Series_Counter k(1, maxSD);
  const Series_End end(maxSD);
  Shortened_Series shortened(rule, square, maxSD, end.last_power());
  for (;;) {
    k.step();
    power.multiply_by(square, maxSD);
    power.negate();
    sum.add(Quotient(power, k.value(), maxSD), maxSD);
    // No later term can change this token, and nobody waits for 2,147,483,647 digits of them.
    const bool goes_on = !power.is_token() && !power.is_zero();
    if (sum.is_token() && sum.text() == value_token && goes_on) break;
    if (end.is_reached(power)) break;
    if (auto rest = shortened.sum_from({power, sum, k.whole()})) return rest->text();
  }
  return sum.text();
}

}  // namespace quorvex
