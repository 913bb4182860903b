#include "numbers/whole_part.h"

#include <utility>

#include "text/clean_up_number.h"
#include "text/close_number.h"
#include "text/primitives.h"
#include "text/round_function.h"

namespace quorvex {
namespace {

NumberText Close(std::string_view rounded, const Format_Arguments& format) {
  return Close_In_Full(Read_Decimal(Clean_Up_Number(rounded, false, false)), format);
}

}  // namespace

NumberText Int_Function(std::string_view num, const Format_Arguments& format) {
  if (num.empty()) return Close("0", format);
  const auto direction = Is_Positive(num) ? Rounding_Direction::down : Rounding_Direction::up;
  return Close(Round_Function(num, 0, direction, {}), format);
}

NumberText Trunc_Function(std::string_view num, const HostValue& num_digits,
                          const Format_Arguments& format) {
  if (num.empty()) return Close("0", format);
  return Close(Round_Function(num, Places_Of(num_digits), Rounding_Direction::down, {}), format);
}

}  // namespace quorvex
