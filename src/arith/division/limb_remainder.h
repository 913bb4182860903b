// The remainder of a division by a number of few limbs, or with a quotient of few, by long
// division.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex::limbs {

/// `dividend` modulo `divisor`, both digits without leading zeros, the divisor not the longer.
/// Digits without leading zeros, none for 0. The work grows with the product of the lengths of
/// divisor and quotient.
NumberText Remainder(std::string_view dividend, std::string_view divisor);

}  // namespace quorvex::limbs
