// Greatest common divisors without rounding.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The greatest common divisor of two digit strings, not both 0.
NumberText Exact_Divisor(std::string_view a, std::string_view b);

}  // namespace quorvex
