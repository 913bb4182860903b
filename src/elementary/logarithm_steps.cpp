#include "elementary/logarithm_steps.h"

#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/options.h"

namespace quorvex {
namespace {

bool Truth(const HostValue& answer) {
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "What is compared is no number.");
  }
  return answer.boolean();
}

}  // namespace

NumberText Normal_Form(const HostValue& num) {
  std::string scratch;
  return Clean_Up_Number(Text_Of(num, scratch), true, true).NumClean;
}

HostValue Limit_Or_Default(const HostValue& maxSD) {
  return maxSD.is_missing() ? Default_MaxSD() : maxSD;
}

bool Equals(const NumberText& num, std::string_view other) {
  return Truth(Compare_Numbers(num, other, true, false));
}

bool Is_At_Most(const NumberText& num, std::string_view other) {
  return Truth(Compare_Numbers(other, num, true, true));
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
