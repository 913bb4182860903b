#include "text/recognition.h"

#include "host/run_time_failure.h"
#include "text/operand.h"
#include "text/primitives.h"

namespace quorvex {

bool Is_Lone_Mark(std::string_view text) {
  const Separators separators = Current_Separators();
  return text.empty() || text == "-" || text == "()" || text == separators.decimal() ||
         text == separators.thousands() || text == Current_Currency().symbol();
}

bool Is_Number_Text(std::string_view text) {
  if (Is_Lone_Mark(text)) return false;
  return With_Handler([&] { return Operand(text, Exponent_Zeros::one).is_number(); },
                      [](const Run_Time_Failure&) { return false; });
}

}  // namespace quorvex
