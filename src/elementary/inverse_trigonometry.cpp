#include "elementary/inverse_trigonometry.h"

#include <string_view>

#include "elementary/constants.h"
#include "elementary/series/arc_tangent_series.h"
#include "elementary/steps/text_steps.h"
#include "host/conversions.h"
#include "numbers/signs.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr double half = 0.5;

NumberText Pi_Text(const Text_Steps& steps) {
  return To_Text(Pi_Digits(steps.limit));
}

NumberText Two_Fifths() {
  return "0" + Decimal_Separator() + "4";
}

bool Exceeds_1(const NumberText& num) {
  return Is_Greater(Abs_Function(num), "1");
}

// (y - 1) / (y + 1), whose arc tangent is that of y less an eighth of a turn
NumberText Less_An_Eighth(const NumberText& y, const Text_Steps& steps) {
  return steps.quotient(steps.difference(y, "1"), steps.sum(y, "1"));
}

// Numbers above 1 are folded to their reciprocals, and what is then above 0.4 is taken less an
// eighth of a turn: the series gets 3/7 at most.
NumberText Arc_Tangent(const NumberText& num, const NumberText& pi, const Text_Steps& steps) {
  const bool is_negative = Is_Greater("0", num);
  NumberText y = is_negative ? ChangeSign_Function(num) : num;
  const bool is_above_1 = Exceeds_1(num);
  if (is_above_1) y = steps.quotient("1", y);
  const bool is_folded = Is_Greater(Abs_Function(y), Two_Fifths());
  const NumberText z = is_folded ? Less_An_Eighth(y, steps) : y;
  // No sum of a series changes a token: where pi is one, the terms need not be waited for. A
  // quotient near the ceiling of digits can be empty, and the series of that must fail.
  const bool has_series = !z.empty() && !Has_Token_Mark(z);
  if (Has_Token_Mark(pi) && (is_above_1 || is_folded) && has_series) return pi;

  NumberText arc = ATan_Series(z, steps.limit);
  if (is_folded) arc = steps.sum(arc, steps.quotient(pi, "4"));
  if (is_above_1) arc = steps.difference(steps.quotient(pi, "2"), arc);
  return is_negative ? ChangeSign_Function(arc) : arc;
}

// The other leg of a right triangle whose hypotenuse is 1.
NumberText Other_Leg(const NumberText& num, const Text_Steps& steps) {
  return steps.root(steps.difference("1", steps.product(num, num)), "2");
}

}  // namespace

HostValue ATan_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText number = To_Text(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  return Arc_Tangent(number, Pi_Text(steps), steps);
}

HostValue ASin_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText number = To_Text(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  const NumberText pi = Pi_Text(steps);
  if (Exceeds_1(number)) return num_token;
  if (Is_Equal(number, "1")) return steps.product(pi, Number_To_Text(half));
  if (Is_Equal(number, "-1")) return steps.product(pi, Number_To_Text(-half));
  return Arc_Tangent(steps.quotient(number, Other_Leg(number, steps)), pi, steps);
}

HostValue ACos_Function(const HostValue& num, const HostValue& maxSD) {
  const NumberText number = To_Text(num);
  const double as_float = To_Number(num);
  const Text_Steps steps{Working_Limit(maxSD)};
  NumberText pi = Pi_Text(steps);
  if (Exceeds_1(number)) return num_token;
  // By the float and not by the digits, so that a worksheet's 1 with a trace of rounding is 1.
  if (as_float == 1) return 0;
  if (as_float == 0) return steps.product(pi, Number_To_Text(half));
  if (as_float == -1) return pi;
  NumberText arc = Arc_Tangent(steps.quotient(Other_Leg(number, steps), number), pi, steps);
  return as_float < 0 ? steps.sum(arc, pi) : arc;
}

}  // namespace quorvex
