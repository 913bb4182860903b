// Quotients of short operands, and by short divisors, without the products of long texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "text/decimal.h"

namespace quorvex {

/// The first `p` digits of X times the `p` digits of `Iterated_Reciprocal` of k, both as whole
/// numbers, or nothing where this isn't the way to them. The power of ten counts the digits that
/// follow. X and k are digits without leading zeros.
std::optional<Decimal> Quick_Quotient(std::string_view X, std::string_view k, std::int32_t p);

}  // namespace quorvex
