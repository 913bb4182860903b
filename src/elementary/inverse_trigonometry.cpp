#include "elementary/inverse_trigonometry.h"

#include <utility>

#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/series/arc_tangent_series.h"
#include "elementary/steps/step_functions.h"
#include "host/conversions.h"
#include "text/compare_numbers.h"
#include "text/decimal.h"
#include "text/limits.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr double half = 0.5;

bool Exceeds_1(const Step_Number& num) {
  return Is_Greater(Magnitude_Of(num), Step_Number(1));
}

bool Exceeds_Two_Fifths(const Step_Number& num) {
  return Is_Greater(Magnitude_Of(num), Step_Number(Decimal{"4", -1}));
}

// (y - 1) / (y + 1), whose arc tangent is that of y less an eighth of a turn
Step_Number Less_An_Eighth(const Step_Number& y, const Steps& steps) {
  const Step_Number one(1);
  return steps.quotient(steps.difference(y, one), steps.sum(y, one));
}

// Numbers above 1 are folded to their reciprocals, and what is then above 0.4 is taken less an
// eighth of a turn: the series gets 3/7 at most.
Step_Number Arc_Tangent(const Step_Number& num, const Step_Number& pi, const Steps& steps) {
  const bool is_negative = Is_Greater(Step_Number(0), num);
  Step_Number y = is_negative ? Opposite_Of(num) : num;
  const bool is_above_1 = Exceeds_1(num);
  if (is_above_1) y = steps.quotient(Step_Number(1), y);
  const bool is_folded = Exceeds_Two_Fifths(y);
  const Step_Number z = is_folded ? Less_An_Eighth(y, steps) : y;
  // No sum of a series changes a token: where pi is one, the terms need not be waited for. A
  // quotient near the ceiling of digits can be empty, and the series of that must fail.
  const bool has_series = !z.is_token() && (z.is_in_limbs() || !z.text().empty());
  if (pi.is_token() && (is_above_1 || is_folded) && has_series) return pi;

  Step_Number arc = ATan_Series(z, steps);
  if (is_folded) steps.add(arc, steps.quotient(pi, Step_Number(4)));
  if (is_above_1) arc = steps.difference(steps.quotient(pi, Step_Number(2)), arc);
  return is_negative ? Opposite_Of(arc) : arc;
}

// The other leg of a right triangle whose hypotenuse is 1.
Step_Number Other_Leg(const Step_Number& num, const Steps& steps) {
  const Step_Number square = steps.product(num, num);
  return Root(steps.difference(Step_Number(1), square), Step_Number(2), steps);
}

}  // namespace

HostValue ATan_Function(const HostValue& num, const HostValue& maxSD) {
  const Step_Number number(To_Text(num));
  const Steps steps(Working_Limit(maxSD));
  return Arc_Tangent(number, Pi_Of(steps.limit()), steps).text();
}

HostValue ASin_Function(const HostValue& num, const HostValue& maxSD) {
  const Step_Number number(To_Text(num));
  const Steps steps(Working_Limit(maxSD));
  const Step_Number pi = Pi_Of(steps.limit());
  if (Exceeds_1(number)) return num_token;
  if (Is_Equal(number, Step_Number(1))) return steps.product(pi, Step_Number(half)).text();
  if (Is_Equal(number, Step_Number(-1))) return steps.product(pi, Step_Number(-half)).text();
  return Arc_Tangent(steps.quotient(number, Other_Leg(number, steps)), pi, steps).text();
}

HostValue ACos_Function(const HostValue& num, const HostValue& maxSD) {
  const Step_Number number(To_Text(num));
  const double as_float = To_Number(num);
  const Steps steps(Working_Limit(maxSD));
  const Step_Number pi = Pi_Of(steps.limit());
  if (Exceeds_1(number)) return num_token;
  // By the float and not by the digits, so that a worksheet's 1 with a trace of rounding is 1.
  if (as_float == 1) return 0;
  if (as_float == 0) return steps.product(pi, Step_Number(half)).text();
  if (as_float == -1) return pi.text();
  Step_Number arc = Arc_Tangent(steps.quotient(Other_Leg(number, steps), number), pi, steps);
  if (as_float < 0) steps.add(arc, pi);
  return arc.text();
}

}  // namespace quorvex
