#include "elementary/trigonometry.h"

#include <string_view>
#include <utility>

#include "elementary/constants.h"
#include "elementary/series/sine_series.h"
#include "elementary/steps/reduce_to_90.h"
#include "elementary/steps/text_steps.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "numbers/signs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// What differs between the three functions of an angle.
struct Ratio {
  NumberText (*of_small)(const NumberText& alpha, const Text_Steps& steps);
  NumberText (*of_complement)(const NumberText& rest, const Text_Steps& steps);
  std::string_view negative_quadrants;
};

NumberText Sine(const NumberText& x, const Text_Steps& steps) {
  return Sin_Series(x, steps.limit);
}

NumberText Cosine(const NumberText& x, const Text_Steps& steps) {
  return Cos_Series(x, steps.limit);
}

NumberText Tangent(const NumberText& x, const Text_Steps& steps) {
  return Tan_Series(x, steps.limit);
}

NumberText Cotangent(const NumberText& x, const Text_Steps& steps) {
  return steps.quotient("1", Tan_Series(x, steps.limit));
}

constexpr Ratio sine{Sine, Cosine, "34"};
constexpr Ratio cosine{Cosine, Sine, "23"};
constexpr Ratio tangent{Tangent, Cotangent, "24"};

bool Is_Negative(const Ratio& ratio, const NumberText& quadrant) {
  return quadrant.size() == 1 && ratio.negative_quadrants.find(quadrant) != std::string_view::npos;
}

// What the limit can't tell from 0 is 0.
NumberText Without_Traces(NumberText value, const Text_Steps& steps) {
  const NumberText threshold = steps.power("10", Number_To_Text(0 - steps.limit));
  if (Is_Greater(threshold, Abs_Function(value))) value = "0";
  return value;
}

NumberText Pi_Of(const Text_Steps& steps) {
  NumberText pi = To_Text(Pi_Digits(steps.limit));
  if (Has_Token_Mark(pi)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           "More digits of pi are asked for than are stored.");
  }
  return pi;
}

NumberText Evaluate(const Ratio& ratio, const NumberText& angle, const Text_Steps& steps) {
  const NumberText pi = Pi_Of(steps);
  const NumberText halfpi = steps.quotient(pi, "2");
  const type_Reduce90 folded = Reduce_To_90(angle, halfpi, steps);
  // Up to an eighth of a turn the series takes the angle, and beyond it what is left to a quarter.
  NumberText value = Is_At_Least(steps.quotient(pi, "4"), folded.Alpha)
                         ? ratio.of_small(folded.Alpha, steps)
                         : ratio.of_complement(steps.difference(halfpi, folded.Alpha), steps);
  if (Is_Negative(ratio, folded.Quadrant)) value = Neg_Function(value);
  return Without_Traces(std::move(value), steps);
}

}  // namespace

NumberText Sin_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  return angle == "0" ? angle : Evaluate(sine, angle, steps);
}

HostValue Cos_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  // The cosine of 0 is 1, and yet 0 stays: worksheets tell by it that there is no angle at all.
  if (angle == "0") return 0;
  return Evaluate(cosine, angle, steps);
}

HostValue Tan_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText angle = To_Text(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  if (angle == "0") return 0;
  return Evaluate(tangent, angle, steps);
}

}  // namespace quorvex
