#include "text/recognition.h"

#include "host/run_time_failure.h"
#include "text/operand.h"
#include "text/primitives.h"

namespace quorvex {

bool Is_Lone_Mark(std::string_view text) {
  const Locale& locale = Current_Locale();
  return text.empty() || text == "-" || text == "()" || text == locale.decimal_separator ||
         text == locale.thousands_separator || text == locale.currency_symbol;
}

bool Is_Number_Text(std::string_view text) {
  if (Is_Lone_Mark(text)) return false;
  return With_Handler([&] { return Operand(text, Exponent_Zeros::one).is_number(); },
                      [](const Run_Time_Failure&) { return false; });
}

}  // namespace quorvex
