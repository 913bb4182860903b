// The next even or odd whole number.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

// Empty text counts as 0, and 0 as positive. What is no number gives "#VALUE!". All digits are
// kept. An option that can't be read fails with type_mismatch.

enum class Parity { even, odd };

/// The worker of `qvxEVEN` and `qvxODD`: away from zero, to the next whole number and from there to
/// the next one of that parity. With `RoundNegTowardZero` negative numbers go up instead, so that
/// the odd number for -0.5 is 1.
NumberText Even_Function(std::string_view num, Parity wanted, bool RoundNegTowardZero,
                         const Format_Arguments& format);

/// The worker of `qvxEVEN2` and `qvxODD2`: towards zero. The odd number for 0 is -1. With
/// `RoundNegAwayFromZero` negative numbers go down.
NumberText Odd_Function(std::string_view num, Parity wanted, bool RoundNegAwayFromZero,
                        const Format_Arguments& format);

}  // namespace quorvex
