#include "elementary/exponential.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "arith/operation/steps.h"
#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/series/shortened_series.h"
#include "elementary/steps/logarithm_steps.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/limits.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr double guard_digits = 10;

// How often ln 2 goes into a number, by floats.
std::int32_t Multiple_Of_Ln2(const NumberText& number, const NumberText& ln2) {
  const double divisor = Text_To_Number(ln2);
  if (divisor == 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "ln 2 has no digits at this limit.");
  }
  return To_Int32(std::floor(Text_To_Number(number) / divisor));
}

constexpr Series_Rule rule{.stride = 1,
                           .divisor = [](std::uint64_t k) { return k; },
                           .keeps_power = false,
                           .ends_by_power = true,
                           .alternates = false};

// The sum of r^k / k!.
Step_Number Taylor_Series(const Step_Number& r, std::int32_t limit) {
  const Steps steps(limit);
  const std::int32_t last_factor = 5 * limit;
  Step_Number sum = steps.sum(Step_Number(1), r);
  Step_Number term = r;
  const std::int64_t last_power = -std::int64_t{limit} - 1;
  Shortened_Series shortened(rule, r, limit, last_power, static_cast<std::uint64_t>(last_factor));
  for (std::int32_t k = 2; k <= last_factor; ++k) {
    Yield();
    steps.multiply(term, steps.quotient(r, Step_Number(k)));
    steps.add(sum, term);
    // From a term that is 0 or a token on, all are, and change nothing more.
    if (term.is_token() || term.is_zero()) break;
    if (Ends_Series(term, last_power)) break;
    if (auto rest = shortened.sum_from({term, sum, static_cast<std::uint64_t>(k)})) return *rest;
  }
  return sum;
}

// e to a number of 0 or more, which is shown without its sign.
Step_Number Power_Of_E(const NumberText& magnitude, std::int32_t limit) {
  const Steps steps(limit);
  const NumberText ln2 = To_Text(Ln2_Digits(limit));
  const std::int32_t n = Multiple_Of_Ln2(magnitude, ln2);
  Step_Number r =
      steps.difference(Step_Number(magnitude), steps.product(Step_Number(n), Step_Number(ln2)));
  const Step_Number tenth("0" + Decimal_Separator() + "1");
  const Step_Number two(2);
  int halvings = 0;
  for (; !Is_Greater(tenth, r); ++halvings) {
    Yield();
    steps.divide(r, two);
  }
  Step_Number power = Taylor_Series(r, limit);
  for (; halvings > 0; --halvings) {
    Yield();
    steps.multiply(power, power);
  }
  if (n <= 0) return power;
  return steps.product(power, Power(two, Step_Number(n), steps));
}

}  // namespace

NumberText Exp_Function(const HostValue& num, const HostValue& exponential_notation,
                        const HostValue& maxSD) {
  return With_Outer_Handler(
      [&] {
        const NumberText number = Normal_Form(num);
        if (Is_Equal(number, "0")) return NumberText("1");
        const HostValue digits = Limit_As_Given(maxSD);
        const std::int32_t limit = To_Int32(To_Number(digits) + guard_digits);
        const bool is_negative = number.front() == '-';
        Step_Number power = Power_Of_E(is_negative ? number.substr(1) : number, limit);
        if (is_negative) power = Steps(limit).quotient(Step_Number(1), power);
        return Finish(power, exponential_notation, digits);
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
