#include "elementary/trigonometry.h"

#include <initializer_list>
#include <utility>

#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/series/sine_series.h"
#include "elementary/steps/reduce_to_90.h"
#include "elementary/steps/step_digits.h"
#include "elementary/steps/step_functions.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/limits.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Series = Step_Number (*)(const Step_Number& x, const Steps& steps);

Step_Number Cotangent(const Step_Number& x, const Steps& steps) {
  return steps.quotient(Step_Number(1), Tan_Series(x, steps));
}

// What differs between the three functions of an angle.
struct Ratio {
  Series of_small;
  Series of_complement;
  std::initializer_list<int> negative_quadrants;
};

constexpr Ratio sine{Sin_Series, Cos_Series, {3, 4}};
constexpr Ratio cosine{Cos_Series, Sin_Series, {2, 3}};
constexpr Ratio tangent{Tan_Series, Cotangent, {2, 4}};

bool Is_Negative(const Ratio& ratio, const Step_Number& quadrant) {
  for (const int negative : ratio.negative_quadrants) {
    if (Is_Quadrant(quadrant, negative)) return true;
  }
  return false;
}

// What the limit can't tell from 0 is 0.
NumberText Without_Traces(const Step_Number& value, const Steps& steps) {
  if (value.is_in_limbs() && Whole_Digits_Of(steps.limit())) {
    const bool is_trace =
        value.is_zero() || static_cast<double>(value.leading_power()) < -steps.limit();
    return is_trace ? "0" : value.text();
  }
  const Step_Number threshold = Power(Step_Number(10), Step_Number(0 - steps.limit()), steps);
  return Is_Greater(threshold, Magnitude_Of(value)) ? "0" : value.text();
}

Step_Number Stored_Pi(const Steps& steps) {
  Step_Number pi = Pi_Of(steps.limit());
  if (pi.is_token()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "More digits of pi are asked for than are stored.");
  }
  return pi;
}

NumberText Evaluate(const Ratio& ratio, const NumberText& angle, const Steps& steps) {
  const Step_Number pi = Stored_Pi(steps);
  const Step_Number halfpi = steps.quotient(pi, Step_Number(2));
  const type_Reduce90 folded = Reduce_To_90(Step_Number(angle), halfpi, steps);
  // Up to an eighth of a turn the series takes the angle, and beyond it what is left to a quarter.
  Step_Number value = Is_At_Least(steps.quotient(pi, Step_Number(4)), folded.Alpha)
                          ? ratio.of_small(folded.Alpha, steps)
                          : ratio.of_complement(steps.difference(halfpi, folded.Alpha), steps);
  if (Is_Negative(ratio, folded.Quadrant)) value = Negative_Of(value);
  return Without_Traces(value, steps);
}

}  // namespace

NumberText Sin_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Steps steps(Working_Limit(maxSD));
  return angle == "0" ? angle : Evaluate(sine, angle, steps);
}

HostValue Cos_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Steps steps(Working_Limit(maxSD));
  // The cosine of 0 is 1, and yet 0 stays: worksheets tell by it that there is no angle at all.
  if (angle == "0") return 0;
  return Evaluate(cosine, angle, steps);
}

HostValue Tan_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Steps steps(Working_Limit(maxSD));
  if (angle == "0") return 0;
  return Evaluate(tangent, angle, steps);
}

}  // namespace quorvex
