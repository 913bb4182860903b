// Quotients by a reciprocal of half their digits.
#pragma once

#include <cstdint>
#include <string_view>

#include "text/decimal.h"

namespace quorvex {

/// X / k as division rounds it to `sd` digits, at least a hundred, or false, and no quotient, where
/// this isn't the way to them. X and k are digits without leading zeros.
bool Long_Quotient(std::string_view X, std::string_view k, std::int32_t sd, Decimal& quotient);

}  // namespace quorvex
