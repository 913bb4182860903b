#include "elementary/steps/logarithm_steps.h"

#include <cmath>
#include <string>

#include "arith/digits/multiply_digits.h"
#include "arith/do_operation.h"
#include "arith/powers/power_function.h"
#include "elementary/steps/step_digits.h"
#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/options.h"

namespace quorvex {

NumberText Normal_Form(const HostValue& num) {
  std::string scratch;
  return Clean_Up_Number(Text_Of(num, scratch), true, true).NumClean;
}

NumberText Finish(const Step_Number& value, const HostValue& exponential_notation,
                  const HostValue& maxSD) {
  const type_Restrictionator given = Restrictionator(
      {.exponential_notation = exponential_notation, .maximum_significant_digits = maxSD});
  type_Restrictionator options;
  options.ExponentialNotation = given.ExponentialNotation;
  options.maxSD = given.maxSD;
  if (!value.is_in_limbs()) {
    return Do_Operation_On_Texts(operation::add, value.text(), "0", options);
  }
  // As the sum with 0 would have it.
  options.maxSD = With_Guard_Digit(options.maxSD);
  return Format_Result(value.decimal(), options, false);
}

// At a digit or less the text is no more than "0.", "0" or nothing.
Step_Number Number_Of_Ln2(std::string_view text) {
  constexpr std::size_t shortest = 4;
  if (text.size() >= shortest) text.remove_suffix(Count_Trailing_Zeros(text));
  return Step_Number(text);
}

// A small power has no digits to be rounded.
Step_Number Two_To(std::int32_t exponent, const Steps& steps) {
  constexpr std::int32_t most = 49;
  constexpr std::size_t digits_of_most = 15;
  const auto digits = Whole_Digits_Of(steps.limit());
  if (exponent <= most && digits && *digits >= digits_of_most && Can_Multiply()) {
    return Step_Number(std::ldexp(1, exponent));
  }
  return Power(Step_Number(2), Step_Number(exponent), steps);
}

bool Ends_Series(const Step_Number& term, std::int64_t last) {
  return !term.is_negative() && term.leading_power() <= last;
}

}  // namespace quorvex
