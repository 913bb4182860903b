#include "elementary/logarithm.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/operation/steps.h"
#include "elementary/constants.h"
#include "elementary/series/shortened_series.h"
#include "elementary/steps/logarithm_steps.h"
#include "elementary/steps/step_digits.h"
#include "elementary/steps/step_functions.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/guard_digits.h"
#include "text/limits.h"
#include "text/options.h"
#include "text/round_to_sd.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The logarithms that are known by a look at the number.
std::optional<std::string_view> Known_Logarithm(const NumberText& num) {
  if (Is_Equal(num, "1")) return "0";
  if (Is_At_Least("0", num)) return num_token;
  return std::nullopt;
}

// The n with num / 2^n close to the range 1 to 2, by the float of the number: next to a power of
// two the quotient can lie just outside.
std::int32_t Power_Of_Two(const NumberText& num) {
  const double approximate = Text_To_Number(num);
  if (approximate == 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "A number is too small for a float.");
  }
  return static_cast<std::int32_t>(std::floor(std::log(approximate) / std::log(2.0)));
}

// Text can name a limit otherwise.
bool Is_Number(const HostValue& value, double number) {
  return value.kind() == HostValue::Kind::number && value.number() == number;
}

// The precision of a logarithm, as far as its steps read it.
class Precision {
 public:
  // Fails where the limit can't be read, by the host or by arithmetic.
  explicit Precision(const HostValue& maxSD)
      : steps_(Restrictionator({.maximum_significant_digits = maxSD}).maxSD) {
    const auto digits = Whole_Digits_Of(steps_.limit());
    if (digits && Is_Number(maxSD, steps_.limit()) && Can_Multiply()) {
      last_factor_ = static_cast<std::int32_t>(5 * *digits);
      last_power_ = -static_cast<std::int64_t>(*digits) - 1;
      return;
    }
    const Step_Number limit(To_Text(maxSD));
    last_factor_ = To_Int32(steps_.product(Step_Number(5), limit).text());
    last_power_ = Greatest_Below(Opposite_Of(limit));
  }

  const Steps& steps() const { return steps_; }

  // Of k, in the terms t^k / k.
  std::int32_t last_factor() const { return last_factor_; }

  // Of ten: a term with no greater one ends the series.
  std::int64_t last_power() const { return last_power_; }

 private:
  // The greatest whole number that is less. Text can name more digits than a float has.
  static std::int64_t Greatest_Below(const Step_Number& number) {
    double whole = std::ceil(Text_To_Number(number.text())) + 1;
    while (!Is_Greater(number, Step_Number(whole))) --whole;
    return static_cast<std::int64_t>(whole);
  }

  Steps steps_;
  std::int32_t last_factor_ = 0;
  std::int64_t last_power_ = 0;
};

// True where a sum stays as it is whatever negative terms follow this one. They only become smaller
// (t is next to 0 where it is negative), and each lies below the last digit that sums keep, and
// behind it leaves a "0" as the first dropped digit, by which alone is rounded.
bool Adds_Nothing(const Step_Number& sum, const Step_Number& term, double limit) {
  const auto kept = static_cast<std::int64_t>(Digits_Of_Result(std::ceil(limit)));
  return term.is_negative() && term.leading_power() < sum.leading_power() - kept;
}

constexpr Series_Rule rule{.stride = 2,
                           .power_divisor = nullptr,
                           .term_divisor = [](std::uint64_t k) { return k; },
                           .ends_by_power = false,
                           .alternates = false};

// The sum of t^k / k over the odd k.
Step_Number Area_Tangent(const Step_Number& t, const Precision& precision) {
  const Steps& steps = precision.steps();
  const Step_Number square = steps.product(t, t);
  Step_Number power = t;
  Step_Number sum = t;
  const std::int32_t last_factor = precision.last_factor();
  Shortened_Series shortened(rule, square, steps.limit(), precision.last_power(),
                             static_cast<std::uint64_t>(last_factor));
  for (std::int32_t k = 3; k <= last_factor; k += 2) {
    Yield();
    steps.multiply(power, square);
    const Step_Number term = steps.quotient(power, Step_Number(k));
    steps.add(sum, term);
    // From a term that is 0 or a token on, all are, and change nothing more.
    if (term.is_token() || term.is_zero()) break;
    // Negative terms would go on to the last factor, since none of them ends the series.
    if (Ends_Series(term, precision.last_power()) || Adds_Nothing(sum, term, steps.limit())) break;
    if (auto rest = shortened.sum_from({power, sum, static_cast<std::uint64_t>(k)})) return *rest;
  }
  return sum;
}

// The logarithm of a number above 0 that is not 1.
Step_Number Value_Of_Logarithm(const NumberText& num, const HostValue& ln2,
                               const HostValue& maxSD) {
  const std::int32_t n = Power_Of_Two(num);
  if (ln2.text() == num_token) {
    // Too many digits, or a limit that is no number: then this fails.
    To_Number(maxSD);
    return Step_Number(ln2.text());
  }
  const Precision precision(maxSD);
  const Steps& steps = precision.steps();

  const Step_Number number(num);
  const Step_Number power = Two_To(std::abs(n), steps);
  const Step_Number y = n < 0 ? steps.product(number, power) : steps.quotient(number, power);
  const Step_Number one(1);
  const Step_Number t = steps.quotient(steps.difference(y, one), steps.sum(y, one));
  const Step_Number twice = steps.product(Step_Number(2), Area_Tangent(t, precision));
  return steps.sum(twice, steps.product(Step_Number(n), Number_Of_Ln2(ln2.text())));
}

// The natural logarithm as `close` makes it of its value; known ones are not closed.
template <typename Result, typename Close>
Result Natural_Logarithm(const HostValue& num, const HostValue& maxSD, const Close& close) {
  return With_Handler(
      [&] {
        const NumberText number = Normal_Form(num);
        // A limit below -1 fails here, whatever the number.
        const HostValue ln2 = Ln2_Digits(maxSD);
        if (const auto known = Known_Logarithm(number)) return Result(*known);
        return close(Value_Of_Logarithm(number, ln2, maxSD));
      },
      [](const Run_Time_Failure&) { return Result(value_token); });
}

// As `Round_To_SD` rounds the text: a zero before the separator and a minus are characters that
// count, and zeros behind it do. Where nines carry into a longer number, the text is asked.
Step_Number Rounded(const Step_Number& value, double limit) {
  if (Whole_Digits_Of(limit) && value.is_in_limbs() && !value.is_zero()) {
    const std::int64_t leading = value.leading_power();
    const std::int64_t counted = std::max<std::int64_t>(leading, 0) + (value.is_negative() ? 2 : 1);
    const std::int64_t decimals = static_cast<std::int64_t>(limit) - counted;
    if (decimals > 0 && decimals + leading >= 0) {
      limbs::Number rounded;
      limbs::Add(value.in_limbs(), {}, false, static_cast<std::size_t>(decimals + leading + 1),
                 rounded);
      if (limbs::Leading_Power(rounded) == leading) return Step_Number(std::move(rounded));
    }
  }
  return Step_Number(To_Text(Round_To_SD(value.text(), limit)));
}

// The natural logarithm as a part of another one: rounded to the limit, and not formatted.
Step_Number Rounded_Logarithm(const HostValue& num, double limit) {
  return Natural_Logarithm<Step_Number>(
      num, limit, [&](const Step_Number& value) { return Rounded(value, limit); });
}

Step_Number Logarithm_Of_Base(const HostValue& num_base, double base, double limit) {
  if (base == 10) return Step_Number(To_Text(Ln10_Digits(limit)));
  if (base == 2) return Step_Number(To_Text(Ln2_Digits(limit)));
  return Rounded_Logarithm(num_base, limit);
}

}  // namespace

NumberText Ln_Function(const HostValue& num, const HostValue& exponential_notation,
                       const HostValue& maxSD) {
  const HostValue digits = Limit_As_Given(maxSD);
  return With_Outer_Handler(
      [&] {
        return Natural_Logarithm<NumberText>(num, digits, [&](const Step_Number& value) {
          return Finish(value, exponential_notation, digits);
        });
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

NumberText Log_Function(const HostValue& num, const HostValue& num_base,
                        const HostValue& exponential_notation, const HostValue& maxSD) {
  return With_Outer_Handler(
      [&] {
        const NumberText number = Normal_Form(num);
        if (const auto known = Known_Logarithm(number)) return NumberText(*known);
        const HostValue digits = Limit_As_Given(maxSD);
        // The base itself is the count of guard digits. The last digits of results depend on it,
        // and so does the greatest base that there are digits for, so it stays.
        const double base = num_base.is_missing() ? 10 : To_Number(num_base);
        const double limit = To_Int32(base + To_Number(digits));
        const Step_Number below = Logarithm_Of_Base(num_base, base, limit);
        const Step_Number above = Rounded_Logarithm(number, limit);
        return Finish(Steps(limit).quotient(above, below), exponential_notation, digits);
      },
      [](const Run_Time_Failure&) { return NumberText(value_token); });
}

}  // namespace quorvex
