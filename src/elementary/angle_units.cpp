#include "elementary/angle_units.h"

#include "arith/do_operation.h"
#include "elementary/constants.h"
#include "host/conversions.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr double half_turn = 180;

HostValue Digits(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : To_Number(maxSD);
}

// `angle` times `numerator` / `denominator`.
NumberText Convert(const NumberText& angle, const HostValue& numerator,
                   const HostValue& denominator, const HostValue& digits) {
  const Format_Arguments format{.maximum_significant_digits = digits};
  constexpr Operation_Flags flags{.intermediate = true};
  const HostValue unit = Do_Operation(operation::divide, numerator, denominator, format, flags);
  return Do_Operation(operation::multiply, unit, angle, format, flags);
}

}  // namespace

NumberText Radians_Function(const NumberText& degrees, const HostValue& maxSD) {
  const HostValue digits = Digits(maxSD);
  return Convert(degrees, Pi_Digits(digits), half_turn, digits);
}

NumberText Degrees_Function(const NumberText& radians, const HostValue& maxSD) {
  const HostValue digits = Digits(maxSD);
  return Convert(radians, half_turn, Pi_Digits(digits), digits);
}

}  // namespace quorvex
