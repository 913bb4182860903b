// What the mean iteration ends with, told from the last digits of the root.
#pragma once

#include <cstddef>
#include <optional>

#include "arith/limbs/limb_number.h"
#include "text/decimal.h"

namespace quorvex {

/// The end of the iteration from `start` at a limit of `maxSD`, whose quotients have `digits`
/// digits, or nothing where that can't be told. The root is known to `beyond_quotient` digits more,
/// and neither it nor its reciprocal are near a power of ten.
std::optional<Decimal> Mean_End(const limbs::Number& root, std::size_t digits,
                                const limbs::Number& start, double maxSD);

}  // namespace quorvex
