// Whole powers of short numbers in limbs.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/limbs/limb_number.h"

namespace quorvex {

/// The power of a number that has no more digits than a result at the limit `maxSD`, by the splits
/// of an exponent above 3, every product rounded at the limit. Powers of ten must not run over.
limbs::Number Limb_Power(const limbs::Number& base, std::uint64_t exponent, std::size_t maxSD);

}  // namespace quorvex
