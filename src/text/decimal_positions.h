// Where the decimal separator of a result belongs, and operands without theirs.
#pragma once

#include <cstdint>

#include "host/host_value.h"

namespace quorvex {

/// Two operands aligned for an operation. Positions count from the right end, the separator itself
/// counted: 1 means no fraction digits, 3 means two, 0 no separator.
struct type_DecPosFromEnd {
  double Position = 0;  // of the result
  double Position1 = 0;
  double Position2 = 0;
  NumberText Operand1_Trim;
  NumberText Operand2_Trim;
  double Operand1_TrimLen = 0;
  double Operand2_TrimLen = 0;
};

struct type_RemoveDecimals {
  NumberText Operand1_Trim;
  NumberText Operand2_Trim;
  double Operand1_TrimLen = 0;
  double Operand2_TrimLen = 0;
};

/// Aligns two operands for an operation (codes of `Do_Operation`). To add and subtract, both get a
/// separator and as many fraction digits as the longer fraction has. To multiply and divide, the
/// texts stay; `Position` is that of a product. For any other code all positions stay 0.
type_DecPosFromEnd Decimal_Positions(NumberText operand1, NumberText operand2,
                                     std::int16_t Operation);

/// Takes the separators out of operands aligned so; an operand whose position is 0 has none.
type_RemoveDecimals Remove_Decimals(type_DecPosFromEnd aligned);

}  // namespace quorvex
