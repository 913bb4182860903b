// What Newton's iteration for a root ends with, told from the root.
#pragma once

#include <optional>

#include "arith/operation/step_number.h"
#include "arith/powers/newton_work.h"
#include "text/decimal.h"

namespace quorvex {

/// What the iteration from `start` gives, rounded to one digit more than `limits.maxSD`; nothing
/// where that can't be told. The degree is positive.
std::optional<Decimal> Newton_End(const Step_Number& radicand, const Step_Number& degree,
                                  const Step_Number& start, const Newton_Limits& limits);

}  // namespace quorvex
