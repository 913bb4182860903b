// Quotients of short operands, and by short divisors, without the products of long texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The first digits of a product, and how many digits it has in all.
struct Leading_Digits {
  NumberText digits;
  std::size_t length = 0;
};

/// The first `p` digits of X times the `p` digits of `Iterated_Reciprocal` of k, or nothing where
/// this isn't the way to them. X and k are digits without leading zeros.
std::optional<Leading_Digits> Quick_Quotient(std::string_view X, std::string_view k,
                                             std::int32_t p);

}  // namespace quorvex
