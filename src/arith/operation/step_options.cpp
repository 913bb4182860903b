#include "arith/operation/step_options.h"

#include <cstddef>
#include <string_view>

#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/decimal.h"
#include "text/digit_runs.h"
#include "text/options.h"
#include "text/primitives.h"

namespace quorvex {

NumberText Clean_Text(const Operand& operand) {
  NumberText text = operand.positive() ? "" : "-";
  if (!operand.is_number()) {
    text += operand.magnitude();
    Strip_Leading_Zeros(text);
    return Clean_Up_Number(text, true, true).NumClean;
  }
  const Decimal_Parts& parts = operand.parts();
  if (Is_Zero(parts)) return "0";
  const std::string_view integer = parts.integer.substr(Count_Leading_Zeros(parts.integer));
  const std::string_view fraction =
      parts.fraction.substr(0, parts.fraction.size() - Count_Trailing_Zeros(parts.fraction));
  text += integer.empty() ? "0" : integer;
  if (!fraction.empty()) text.append(Decimal_Separator()).append(fraction);
  return text;
}

Step_Number Clean_Number(const Operand& operand) {
  if (!operand.is_number()) return Step_Number(Clean_Text(operand));
  return Step_Number(Significant_Digits(!operand.positive(), operand.parts()));
}

bool Has_Fraction(const NumberText& number) {
  return number.find(Decimal_Separator()) != NumberText::npos;
}

double Length_Without_Separator(const NumberText& number) {
  const std::size_t separator = Has_Fraction(number) ? Decimal_Separator().size() : 0;
  return static_cast<double>(number.size() - separator);
}

double Length_Without_Separator(const Step_Number& number) {
  return number.is_in_limbs() ? static_cast<double>(Plain_Length(number))
                              : Length_Without_Separator(number.text());
}

double Working_Digits(const Step_Options& options, double characters) {
  return options.working_digits.is_missing() ? characters : To_Number(options.working_digits);
}

bool Are_Too_Long(const Step_Options& options, double working_digits) {
  return options.restrict_input_lengths && 2 * working_digits > maximum_digits;
}

}  // namespace quorvex
