#include "elementary/steps/text_steps.h"

#include <cmath>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "arith/powers/power_function.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/options.h"

namespace quorvex {
namespace {

bool Holds(const HostValue& answer) {
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An argument is no number.");
  }
  return Is_True(answer);
}

}  // namespace

double Working_Limit(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : std::fmin(To_Number(maxSD), maximum_digits);
}

NumberText Text_Steps::sum(std::string_view a, std::string_view b) const {
  return Intermediate(operation::add, a, b, limit);
}

NumberText Text_Steps::difference(std::string_view a, std::string_view b) const {
  return Intermediate(operation::subtract, a, b, limit);
}

NumberText Text_Steps::product(std::string_view a, std::string_view b) const {
  return Intermediate(operation::multiply, a, b, limit);
}

NumberText Text_Steps::quotient(std::string_view a, std::string_view b) const {
  return Intermediate(operation::divide, a, b, limit);
}

NumberText Text_Steps::root(std::string_view a, std::string_view degree) const {
  return Root_Step(a, degree, limit);
}

NumberText Text_Steps::power(std::string_view a, std::string_view exponent) const {
  return Power_Step(a, exponent, limit);
}

bool Is_Equal(std::string_view a, std::string_view b) {
  return Holds(Compare_Numbers(a, b, true, false));
}

bool Is_Greater(std::string_view a, std::string_view b) {
  return Holds(Compare_Numbers(a, b, false, true));
}

bool Is_At_Least(std::string_view a, std::string_view b) {
  return Holds(Compare_Numbers(a, b, true, true));
}

}  // namespace quorvex
