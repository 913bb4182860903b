#include "elementary/exponential.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/operation/steps.h"
#include "elementary/constants.h"
#include "elementary/series/exponential_sum.h"
#include "elementary/series/shortened_series.h"
#include "elementary/steps/logarithm_steps.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/decimal.h"
#include "text/limits.h"
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
                           .power_divisor = [](std::uint64_t k) { return k; },
                           .term_divisor = nullptr,
                           .ends_by_power = true,
                           .alternates = false};

// The sum of r^k / k!.
Step_Number Taylor_Series(const Step_Number& r, const Steps& steps) {
  const auto limit = static_cast<std::int32_t>(steps.limit());
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

// A number as a small rest, of which the series takes e to the power, and what is left to do then.
struct Reduced {
  Step_Number rest;
  int halvings;
  std::int32_t multiple_of_ln2;
  bool is_negative;
};

// Of a magnitude.
Reduced Reduce(const NumberText& magnitude, bool is_negative, const Steps& steps) {
  const NumberText ln2 = To_Text(Ln2_Digits(steps.limit()));
  const std::int32_t n = Multiple_Of_Ln2(magnitude, ln2);
  Step_Number r =
      steps.difference(Step_Number(magnitude), steps.product(Step_Number(n), Number_Of_Ln2(ln2)));
  const Step_Number tenth(Decimal{"1", -1});
  const Step_Number two(2);
  int halvings = 0;
  for (; !Is_Greater(tenth, r); ++halvings) {
    Yield();
    steps.divide(r, two);
  }
  return {std::move(r), halvings, n, is_negative};
}

// From e to the power of the rest to that of the number.
Step_Number Restored(Step_Number power, const Reduced& reduced, const Steps& steps) {
  for (int left = reduced.halvings; left > 0; --left) {
    Yield();
    steps.multiply(power, power);
  }
  if (reduced.multiple_of_ln2 > 0) {
    steps.multiply(power, Two_To(reduced.multiple_of_ln2, steps));
  }
  return reduced.is_negative ? steps.quotient(Step_Number(1), power) : power;
}

// The value rounded as results are, by another sum of the series; nothing where the value that the
// definition gives may be rounded to either side, or can't be told so.
//
// The sum of the series is from 1 to 1.11, and its last place is u = 10^-(limit + 1). Each term is
// rounded to that, by half of it at most, and the term of r^k is below 10^-k: no more than
// limit + 1 are added. By what exact steps have lost, the term of r^k is wrong by less than 20 k u
// times its size, and all together, with what would come behind the end, are by less than 2 u. The
// other sum is rounded once. So the two differ by less than (limit / 2 + 4) u.
//
// A square doubles a relative difference. It and the product with the power of two are rounded in
// both chains, by half a unit each; a reciprocal leaves off less than 10 u.
std::optional<Step_Number> Quick_Value(const Reduced& reduced, double digits, const Steps& steps) {
  constexpr double lowest_limit = 30;  // below, terms in turn cost less
  constexpr double highest_limit = 1'000'000;
  constexpr std::int64_t lowest_power = -15;
  const Step_Number& r = reduced.rest;
  const double limit = steps.limit();
  const bool is_whole = digits >= 1 && limit == digits + guard_digits;
  if (!is_whole || limit < lowest_limit || limit > highest_limit || !Can_Multiply() ||
      !r.is_in_limbs() || r.is_zero() || r.is_negative() || r.leading_power() < lowest_power) {
    return std::nullopt;
  }
  Step_Number power(Exponential_Less_One(r.in_limbs(), static_cast<std::size_t>(limit)));
  steps.add(power, Step_Number(1));
  power = Restored(std::move(power), reduced, steps);
  if (!power.is_in_limbs() || power.is_zero()) return std::nullopt;

  constexpr double rounded_twice = 1.01;
  double difference = limit / 2 + 4;
  for (int left = reduced.halvings; left > 0; --left) difference = 2 * difference + rounded_twice;
  difference += rounded_twice + 20;
  // The value is below ten of its leading digit, and of that the last place of results counts
  // 10^-(digits + 1).
  difference += Shortened_Series::Added_Doubt() * std::pow(10, guard_digits - 1);
  const Step_Number off(Decimal{Number_To_Text(std::ceil(difference)),
                                power.leading_power() - static_cast<std::int64_t>(limit)});
  const Steps as_result(digits);
  Step_Number low = as_result.difference(power, off);
  if (!Is_Equal(low, as_result.sum(power, off))) return std::nullopt;
  return low;
}

}  // namespace

NumberText Exp_Function(const HostValue& num, const HostValue& exponential_notation,
                        const HostValue& maxSD) {
  return With_Outer_Handler(
      [&] {
        const NumberText number = Normal_Form(num);
        if (Is_Equal(number, "0")) return NumberText("1");
        const HostValue digits = Limit_As_Given(maxSD);
        const double shown = To_Number(digits);
        const Steps steps(To_Int32(shown + guard_digits));
        const bool is_negative = number.front() == '-';
        const Reduced reduced = Reduce(is_negative ? number.substr(1) : number, is_negative, steps);
        if (const auto value = Quick_Value(reduced, shown, steps)) {
          return Finish(*value, exponential_notation, digits);
        }
        const Step_Number power = Restored(Taylor_Series(reduced.rest, steps), reduced, steps);
        return Finish(power, exponential_notation, digits);
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
