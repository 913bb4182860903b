// What the operators of formulas give.
#pragma once

#include "formula/expression.h"
#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

/// Applies an operator. Numbers are calculated and compared by the engine, at the default limit; an
/// error value or a token among the operands is the result, of two the left one. Blank is 0, and
/// TRUE and FALSE are 1 and 0.
///
/// Comparisons give TRUE or FALSE. Text that the engine reads as a number compares as that number,
/// other text by its capitals; numbers come before text, and text before FALSE and TRUE. A blank
/// compares as 0, "" or FALSE, whichever the other operand is like.
///
/// Ranges and arrays are taken element by element: a single value, row or column meets each value,
/// column or row of the other operand, and a value without a partner gives #N/A.
HostValue Apply(cls_Quorvex& engine, Operator op, const HostValue& left, const HostValue& right);

/// The opposite number, as text without a touch on its digits; element by element.
HostValue Negated(cls_Quorvex& engine, const HostValue& value);

/// The hundredth part; element by element.
HostValue Hundredth(cls_Quorvex& engine, const HostValue& value);

}  // namespace quorvex
