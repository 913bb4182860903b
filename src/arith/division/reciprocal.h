// The reciprocal of a whole number, by Newton's iteration on digit strings.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/host_value.h"

namespace quorvex {

/// `digits`, read as a whole number, times ten to the `powerOfTen`. On a failure `digits` holds an
/// error token, or is empty.
struct type_Division_Recip {
  NumberText digits;
  std::int32_t powerOfTen = 0;
};

/// `p` digits of 1/k for a digit string `k` without leading zeros. The iteration approaches from
/// below and cuts at each step, so that a reciprocal that ends comes out as a run of nines: that of
/// 2 is a 4 and nines.
///
/// Failures end the iteration: `digits` is then empty, or "#VALUE!", cut to `p` characters, where
/// products can't be formed, or "#EXPR!" where the iteration would never end (a `p` of 2). A `p`
/// below 2 gives no digits.
type_Division_Recip Iterated_Reciprocal(const NumberText& k, std::int32_t p);

/// The same digits and tokens, most often without the iteration; "1" gives itself, "0" gives nines
/// and the largest power. A power of ten beyond 32 bits fails with overflow.
type_Division_Recip myInverse5(const NumberText& k, std::int32_t p);

/// The power of ten of `p` digits of the reciprocal of a divisor of so many digits. Fails with
/// overflow beyond 32 bits.
std::int32_t Power_Of_Reciprocal(std::size_t length, std::int32_t p);

}  // namespace quorvex
