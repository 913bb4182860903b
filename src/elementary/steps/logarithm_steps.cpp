#include "elementary/steps/logarithm_steps.h"

#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/options.h"

namespace quorvex {

NumberText Normal_Form(const HostValue& num) {
  std::string scratch;
  return Clean_Up_Number(Text_Of(num, scratch), true, true).NumClean;
}

HostValue Limit_Or_Default(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : maxSD;
}

NumberText Finish(NumberText value, const HostValue& exponential_notation, const HostValue& maxSD) {
  const type_Restrictionator options = Restrictionator(
      {.exponential_notation = exponential_notation, .maximum_significant_digits = maxSD});
  const HostValue notation = options.ExponentialNotation;
  const HostValue limit = options.maxSD;
  return Do_Operation(operation::add, std::move(value), 0,
                      {.exponential_notation = notation, .maximum_significant_digits = limit});
}

bool Ends_Series(const Step_Number& term, std::int64_t last) {
  return !term.is_negative() && term.leading_power() <= last;
}

}  // namespace quorvex
