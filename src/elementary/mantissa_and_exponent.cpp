#include "elementary/mantissa_and_exponent.h"

#include <cmath>
#include <string>

#include "host/conversions.h"
#include "host/utf8.h"
#include "text/digit_runs.h"
#include "text/primitives.h"

namespace quorvex {

NumberText Get_Mantissa(std::string_view num, bool as_integer) {
  NumberText digits(num);
  Remove_Decimal_Separator(digits);
  digits.erase(0, Count_Leading_Zeros(digits));
  if (!as_integer) digits.insert(0, "0" + Decimal_Separator());
  return digits;
}

NumberText Get_Exponent(std::string_view num) {
  num.remove_prefix(Count_Leading_Zeros(num));
  const std::string& separator = Decimal_Separator();
  const std::size_t place = num.find(separator);
  if (place == 0) {
    const std::size_t zeros = Count_Leading_Zeros(num.substr(separator.size()));
    return zeros == 0 ? "0" : "-" + std::to_string(zeros);
  }
  return std::to_string(Count_Characters(num.substr(0, place)));
}

NumberText Combine_Mantissa_And_Exponent(std::string_view mantissa, std::string_view exponent) {
  const double factor = Text_To_Number(mantissa);
  const std::int32_t power = To_Int32(HostValue(exponent));
  const double power_of_ten = std::pow(10, power);
  // A mantissa of 0 does not save a power that is beyond floats.
  return Number_To_Text(std::isinf(power_of_ten) ? power_of_ten : factor * power_of_ten);
}

NumberText Test_Mantissa_And_Exponent(std::string_view num) {
  return Combine_Mantissa_And_Exponent(Get_Mantissa(num, false), Get_Exponent(num));
}

}  // namespace quorvex
