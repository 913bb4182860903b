#include "elementary/steps/logarithm_steps.h"

#include <string>

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/format_result.h"
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
  options.maxSD += 1;  // as the sum with 0 would have it
  return Format_Result(value.decimal(), options, false);
}

bool Ends_Series(const Step_Number& term, std::int64_t last) {
  return !term.is_negative() && term.leading_power() <= last;
}

}  // namespace quorvex
