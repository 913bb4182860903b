#include "elementary/poisson.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "arith/operation/steps.h"
#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/factorial.h"
#include "elementary/steps/step_functions.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "numbers/whole_part.h"
#include "text/close_number.h"
#include "text/limits.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

struct Events {
  Step_Number target;
  Step_Number average;
  bool cumulative;
  bool restricted;
  Steps steps;
};

Step_Number Power_Of(const Step_Number& base, const Step_Number& exponent, const Events& events) {
  const auto power = events.restricted ? Restricted_Power : Power;
  return power(base, exponent, events.steps);
}

// e to an average so small is 1 at all digits that a step keeps. The power is a root whose degree
// has as many digits as the average has decimals, and lies nearer to 1 than the average to 0; with
// thousands of decimals it would take hours.
bool Is_Trace(const Step_Number& average, double limit) {
  constexpr double guard_digits = 10;
  return static_cast<double>(-average.leading_power()) > limit + guard_digits;
}

// Nothing holds the decimals of e to minus an average of so many digits, and where it has
// thousands, finding that out by products takes minutes.
bool Is_Beyond_Decimals(const Step_Number& average) {
  constexpr std::int64_t highest_power = 17;
  return average.leading_power() > highest_power;
}

// What the lengths of the operands would refuse is left to the power.
bool Is_Never_Refused(const Step_Number& average) {
  constexpr std::int64_t never_refused = 100'000'000;
  return !average.is_zero() && !average.is_negative() &&
         std::abs(average.leading_power()) < never_refused;
}

Step_Number Poisson_Exp_Term(const Events& events) {
  const double limit = events.steps.limit();
  const Step_Number e(To_Text(E_Digits(Constant_Digits(limit))));
  if (limit >= 1 && !e.is_token() && Is_Never_Refused(events.average)) {
    if (Is_Trace(events.average, limit)) return Step_Number(1);
    if (Is_Beyond_Decimals(events.average)) {
      throw Run_Time_Failure(Failure_Number::out_of_memory, "A number has too many decimals.");
    }
  }
  return Power_Of(e, Opposite_Of(events.average), events);
}

// The factorial is a parameter because a sum has it from the term before.
Step_Number Poisson_Term(const Step_Number& k, const Step_Number& factorial,
                         const Step_Number& exp_term, const Events& events) {
  const Steps& steps = events.steps;
  // A token decides the term, whatever the power.
  if (factorial.is_token()) return steps.quotient(exp_term, factorial);
  const Step_Number power = Power_Of(events.average, k, events);
  return steps.quotient(steps.product(exp_term, power), factorial);
}

// A step from k to the number that follows. At few digits there comes a k that stays the same.
Step_Number Next_Count(const Step_Number& k, const Events& events) {
  Step_Number next = events.steps.sum(k, Step_Number(1));
  if (!Is_Greater(next, k)) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "With " + Number_To_Text(events.steps.limit()) +
                               " significant digits events can't be counted beyond " + k.text() +
                               ".");
  }
  return next;
}

// The term of a count too great for factorials is a token, and a sum that came to it stays it.
bool Reaches_Token(const Step_Number& target, const Events& events) {
  constexpr std::int32_t enough_to_count = 2;  // two more are kept, and 9999 suffices
  return events.steps.limit() >= enough_to_count &&
         Is_Greater(target, Step_Number(largest_factorial));
}

Step_Number Poisson_Sum(const Step_Number& exp_term, const Events& events) {
  const Step_Number& target = events.target;
  if (Reaches_Token(target, events)) {
    return events.steps.quotient(exp_term, Step_Number(num_token));
  }
  Running_Factorial factorials;
  Step_Number sum(0);
  for (Step_Number k(0); !Is_Greater(k, target); k = Next_Count(k, events)) {
    Yield();
    const Step_Number factorial = factorials.next();
    events.steps.add(sum, Poisson_Term(k, factorial, exp_term, events));
    if (sum.is_token()) break;
  }
  return sum;
}

Step_Number Poisson_Of(const Step_Number& exp_term, const Events& events) {
  if (events.cumulative) return Poisson_Sum(exp_term, events);
  // At the default limit, and not at that of the call: longer results are wrong behind those
  // digits, but sheets that hold them compare with them, so it stays.
  const Step_Number factorial(Fact_Function(events.target.text(), {}));
  return Poisson_Term(events.target, factorial, exp_term, events);
}

// A great average has terms that begin millions of places behind the separator. No digit depends on
// where they begin, so they are worked out as whole numbers and put back at the end: steps would
// write all these zeros each time. Nothing where the terms are of common sizes.
std::int64_t Places_Apart(const Step_Number& exp_term) {
  constexpr std::int64_t common_power = 1'000'000;
  const bool is_far = exp_term.is_in_limbs() && exp_term.leading_power() < -common_power;
  return is_far ? exp_term.in_limbs().low : 0;
}

Step_Number Moved(const Step_Number& number, std::int64_t limbs) {
  if (limbs == 0 || !number.is_in_limbs() || number.is_zero()) return number;
  limbs::Number moved = number.in_limbs();
  moved.low += limbs;
  return Step_Number(std::move(moved));
}

Step_Number Poisson_Core(const Events& events) {
  const Step_Number exp_term = Poisson_Exp_Term(events);
  const std::int64_t apart = Places_Apart(exp_term);
  return Moved(Poisson_Of(Moved(exp_term, -apart), events), apart);
}

// Numbers in limbs are written once, with the zeros that they then have.
NumberText Close(const Step_Number& probability, const Format_Arguments& format) {
  return probability.is_in_limbs() ? Close_Number(probability.decimal(), format)
                                   : Close_Text(probability.text(), format);
}

struct Count {
  NumberText number;
  std::optional<std::string_view> refusal;
};

// A count of events as an argument gives it.
Count Read_Count(const HostValue& value) {
  NumberText text = To_Text(value);
  if (Is_Number_Text(text)) {
    if (!Is_Positive(text)) return {{}, num_token};
    return {std::move(text), {}};
  }
  const std::string capitals = To_Capitals(text);
  // TRUE is no event either, and not one: sheets that hold truth values are written to that, so it
  // stays.
  if (capitals == "TRUE" || capitals == "FALSE") return {"0", {}};
  return {{}, value_token};
}

// The truth value of an argument that must be of that very kind, a number or a word being refused.
std::optional<bool> Read_Truth(const HostValue& argument) {
  const HostValue& value = Is_Single_Cell(argument) ? Cell_Of(argument) : argument;
  if (value.kind() != HostValue::Kind::boolean) return std::nullopt;
  return value.boolean();
}

std::optional<bool> Read_Truth(const HostValue& argument, bool otherwise) {
  return argument.is_missing() ? otherwise : Read_Truth(argument);
}

}  // namespace

NumberText Poisson_Function(const HostValue& target_num, const HostValue& average_num,
                            const HostValue& is_cumulative, const HostValue& exponential_notation,
                            const HostValue& maximum_significant_digits,
                            const HostValue& restrict_input_lengths) {
  Count target = Read_Count(target_num);
  if (target.refusal) return NumberText(*target.refusal);
  Count average = Read_Count(average_num);
  if (average.refusal) return NumberText(*average.refusal);
  const auto cumulative = Read_Truth(is_cumulative);
  const auto notation = Read_Truth(exponential_notation, false);
  if (!cumulative || !notation) return NumberText(value_token);
  const auto limit = Whole_Limit(maximum_significant_digits);
  const auto restricted = Read_Truth(restrict_input_lengths, true);
  if (!limit || !restricted) return NumberText(value_token);

  const Step_Number probability =
      Poisson_Core({Step_Number(Trunc_Function(target.number)), Step_Number(average.number),
                    *cumulative, *restricted, Steps(*limit)});
  const HostValue shown_notation = *notation;
  const HostValue shown_limit = *limit;
  return Close(probability,
               {.exponential_notation = shown_notation, .maximum_significant_digits = shown_limit});
}

}  // namespace quorvex
