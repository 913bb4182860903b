#include "elementary/angle_units.h"

#include "arith/operation/steps.h"
#include "elementary/constants.h"
#include "text/guard_digits.h"
#include "text/limits.h"

namespace quorvex {
namespace {

constexpr double half_turn = 180;

// `angle` times `numerator` / `denominator`.
NumberText Convert(const NumberText& angle, const Step_Number& numerator,
                   const Step_Number& denominator, double digits) {
  const Steps steps(Up_To_Ceiling(digits));
  return steps.product(steps.quotient(numerator, denominator), Step_Number(angle)).text();
}

}  // namespace

NumberText Radians_Function(const NumberText& degrees, const HostValue& maxSD) {
  const double digits = Limit_As_Number(maxSD);
  return Convert(degrees, Pi_Of(digits), Step_Number(half_turn), digits);
}

NumberText Degrees_Function(const NumberText& radians, const HostValue& maxSD) {
  const double digits = Limit_As_Number(maxSD);
  return Convert(radians, Step_Number(half_turn), Pi_Of(digits), digits);
}

}  // namespace quorvex
