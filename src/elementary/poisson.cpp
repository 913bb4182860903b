#include "elementary/poisson.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "arith/operation/step_number.h"
#include "elementary/constants.h"
#include "elementary/factorial.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "numbers/signs.h"
#include "numbers/whole_part.h"
#include "text/close_number.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

struct Events {
  NumberText target;
  NumberText average;
  bool cumulative = false;
  bool restricted = true;
  std::int32_t limit = 0;
};

NumberText Power(const NumberText& base, const NumberText& exponent, const Events& events) {
  const HostValue limit = events.limit;
  return Do_Operation(operation::power, base, exponent, {.maximum_significant_digits = limit},
                      {.intermediate = true, .restrict_input_lengths = events.restricted});
}

Step_Number Poisson_Exp_Term(const Events& events) {
  const HostValue e = E_Digits(Constant_Digits(events.limit));
  return Step_Number(Power(To_Text(e), ChangeSign_Function(events.average), events));
}

// The factorial is a parameter because a sum has it from the term before.
Step_Number Poisson_Term(const NumberText& k, const Step_Number& factorial,
                         const Step_Number& exp_term, const Events& events) {
  // A token decides the term, whatever the power.
  if (factorial.is_token()) return Quotient(exp_term, factorial, events.limit);
  const Step_Number power(Power(events.average, k, events));
  return Quotient(Product(exp_term, power, events.limit), factorial, events.limit);
}

// A step from k to the number that follows. At few digits there comes a k that stays the same.
Step_Number Next_Count(const Step_Number& k, const Events& events) {
  Step_Number next = Sum(k, Step_Number(1), events.limit);
  if (!Is_Greater(next, k)) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "With " + std::to_string(events.limit) +
                               " significant digits events can't be counted beyond " + k.text() +
                               ".");
  }
  return next;
}

// The term of a count too great for factorials is a token, and a sum that came to it stays it.
bool Reaches_Token(const Step_Number& target, const Events& events) {
  constexpr std::int32_t enough_to_count = 2;  // two more are kept, and 9999 suffices
  return events.limit >= enough_to_count && Is_Greater(target, Step_Number(largest_factorial));
}

Step_Number Poisson_Sum(const Step_Number& exp_term, const Events& events) {
  const Step_Number target(events.target);
  if (Reaches_Token(target, events)) {
    return Quotient(exp_term, Step_Number(num_token), events.limit);
  }
  Running_Factorial factorials;
  Step_Number sum(0);
  for (Step_Number k(0); !Is_Greater(k, target); k = Next_Count(k, events)) {
    Yield();
    const Step_Number factorial(factorials.next());
    sum = Sum(sum, Poisson_Term(k.text(), factorial, exp_term, events), events.limit);
    if (sum.is_token()) break;
  }
  return sum;
}

NumberText Poisson_Core(const Events& events) {
  const Step_Number exp_term = Poisson_Exp_Term(events);
  if (events.cumulative) return Poisson_Sum(exp_term, events).text();
  // At the default limit, and not at that of the call: longer results are wrong behind those
  // digits, but sheets that hold them compare with them, so it stays.
  const Step_Number factorial(Fact_Function(events.target, {}));
  return Poisson_Term(events.target, factorial, exp_term, events).text();
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

// Nothing for text that is no number.
std::optional<std::int32_t> Read_Limit(const HostValue& argument) {
  const HostValue& value = Is_Single_Cell(argument) ? Cell_Of(argument) : argument;
  const bool is_absent =
      value.is_missing() || value.is_empty() || (value.is_text() && value.text().empty());
  if (is_absent) return To_Int32(Default_MaxSD());
  if (value.is_text()) {
    const auto number =
        With_Handler([&] { return std::optional<double>(Text_To_Number(value.text())); },
                     [](const Run_Time_Failure& failure) -> std::optional<double> {
                       if (failure.number() == Failure_Number::type_mismatch) return std::nullopt;
                       throw Run_Time_Failure(failure);
                     });
    if (!number) return std::nullopt;
  }
  return To_Int32(value);
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
  const auto limit = Read_Limit(maximum_significant_digits);
  const auto restricted = Read_Truth(restrict_input_lengths, true);
  if (!limit || !restricted) return NumberText(value_token);

  const NumberText probability = Poisson_Core(
      {Trunc_Function(target.number), std::move(average.number), *cumulative, *restricted, *limit});
  const HostValue shown_notation = *notation;
  const HostValue shown_limit = *limit;
  return Close_Text(probability, {.exponential_notation = shown_notation,
                                  .maximum_significant_digits = shown_limit});
}

}  // namespace quorvex
