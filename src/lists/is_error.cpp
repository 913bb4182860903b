#include "lists/is_error.h"

#include <string>

#include "host/conversions.h"
#include "text/tokens.h"

namespace quorvex {

bool IsError_Function(const HostValue& num) {
  if (Is_Single_Cell(num)) return IsError_Function(Cell_Of(num));
  if (num.kind() == HostValue::Kind::error) return true;
  std::string scratch;
  return Has_Token_Mark(Text_Of(num, scratch));
}

}  // namespace quorvex
