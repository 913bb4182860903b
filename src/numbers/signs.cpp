#include "numbers/signs.h"

#include <utility>

#include "text/clean_up_number.h"
#include "text/close_number.h"

namespace quorvex {
namespace {

NumberText Close(type_CleanUp clean, bool positive, const Format_Arguments& format) {
  return Close_In_Full(std::move(clean.NumClean), clean.DecPos, positive, format);
}

}  // namespace

NumberText Abs_Function(std::string_view num, const Format_Arguments& format) {
  return Close(Clean_Up_Number(num, false, false), true, format);
}

NumberText Neg_Function(std::string_view num, const Format_Arguments& format) {
  if (num.empty()) return "VALUE!";
  return Close(Clean_Up_Number(num, false, false), false, format);
}

NumberText ChangeSign_Function(std::string_view num, const Format_Arguments& format) {
  type_CleanUp clean = Clean_Up_Number(num, false, false);
  const bool positive = !clean.Positive;
  return Close(std::move(clean), positive, format);
}

}  // namespace quorvex
