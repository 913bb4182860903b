// Quotients of as many digits as long division gives soonest, without reciprocal and product.
#pragma once

#include <cstdint>
#include <string_view>

#include "text/decimal.h"

namespace quorvex {

/// X / k as division rounds it to `sd` digits, by its definition the first ones of X times the
/// sd + 3 digits of `Iterated_Reciprocal` of k. False, and no quotient, where this isn't the way to
/// them. X and k are digits without leading zeros.
bool Quick_Quotient(std::string_view X, std::string_view k, std::int32_t sd, Decimal& quotient);

}  // namespace quorvex
