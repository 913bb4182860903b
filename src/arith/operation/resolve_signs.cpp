#include "arith/operation/resolve_signs.h"

#include "arith/operation/operation_codes.h"

namespace quorvex {
namespace {

type_SignOp Sum(const Operand& a, const Operand& b) {
  if (a.positive() == b.positive()) return {operation::add, &a, &b, !a.positive()};
  if (a.positive()) return {operation::subtract, &a, &b, false};
  return {operation::subtract, &b, &a, false};
}

type_SignOp Difference(const Operand& a, const Operand& b) {
  if (a.positive() != b.positive()) return {operation::add, &a, &b, !a.positive()};
  if (a.positive()) return {operation::subtract, &a, &b, false};
  return {operation::subtract, &b, &a, false};
}

}  // namespace

type_SignOp Resolve_Signs(std::int16_t Operation, const Operand& Operand1,
                          const Operand& Operand2) {
  switch (Operation) {
    case operation::add:
      return Sum(Operand1, Operand2);
    case operation::subtract:
      return Difference(Operand1, Operand2);
    case operation::multiply:
    case operation::divide:
      return {Operation, &Operand1, &Operand2, Operand1.positive() != Operand2.positive()};
    case operation::root:
    case operation::power:
      return {Operation, &Operand1, &Operand2, false};
    default:
      return {};
  }
}

}  // namespace quorvex
