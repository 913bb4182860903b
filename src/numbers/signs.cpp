#include "numbers/signs.h"

#include <utility>

#include "text/clean_up_number.h"
#include "text/close_number.h"

namespace quorvex {

NumberText Abs_Function(std::string_view num, const Format_Arguments& format) {
  Decimal number = Read_Decimal(Clean_Up_Number(num, false, false));
  number.negative = false;
  return Close_In_Full(std::move(number), format);
}

NumberText Neg_Function(std::string_view num, const Format_Arguments& format) {
  if (num.empty()) return "VALUE!";
  Decimal number = Read_Decimal(Clean_Up_Number(num, false, false));
  number.negative = true;
  return Close_In_Full(std::move(number), format);
}

NumberText ChangeSign_Function(std::string_view num, const Format_Arguments& format) {
  Decimal number = Read_Decimal(Clean_Up_Number(num, false, false));
  number.negative = !number.negative;
  return Close_In_Full(std::move(number), format);
}

}  // namespace quorvex
