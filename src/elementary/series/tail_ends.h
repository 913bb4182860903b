// What tails of series begin and end with, in whatever way their terms are summed up.
#pragma once

#include <cstdint>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// number * 10^shift, with all digits.
limbs::Number Scaled(const limbs::Number& number, std::int64_t shift);

/// The sum with a whole number of units of its last place, which begins with the sign of the first
/// term that follows.
Step_Number With_Rest(const Series_Tail& tail, const limbs::Number& rest);

}  // namespace quorvex
