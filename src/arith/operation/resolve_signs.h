// The signs of two operands reduced to one operation on magnitudes and one flag.
#pragma once

#include <cstdint>

#include "text/operand.h"

namespace quorvex {

/// An operation after sign reduction.
struct type_SignOp {
  std::int16_t Operation = 0;
  const Operand* Operand1 = nullptr;  // their magnitudes count; for root and power their signs too
  const Operand* Operand2 = nullptr;
  bool Negative = false;
};

/// Reduces the signs: a sum of unlike signs becomes a difference, and so on. Roots and powers keep
/// the signs of their operands. An unknown operation gives an empty record.
type_SignOp Resolve_Signs(std::int16_t Operation, const Operand& Operand1, const Operand& Operand2);

}  // namespace quorvex
