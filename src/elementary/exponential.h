// The exponential function.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// e to the power `num`: multiples of ln 2 are taken off, what is left is halved until it is below
/// 0.1, the Taylor series of that is squared as often, and a power of two puts the multiples back.
/// The steps keep 10 digits more than `maxSD` (`Default_MaxSD` where missing).
///
/// "1" for 0, in any spelling. "#VALUE!" for any failure: what is no number, options that can't be
/// read, more than 40041 digits, and numbers from about 1488522236 on, whose multiple of ln 2 is
/// beyond 32 bits.
NumberText Exp_Function(const HostValue& num, const HostValue& exponential_notation,
                        const HostValue& maxSD);

}  // namespace quorvex
