// Number text as a mantissa below 1 and a power of ten.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

// No sign is treated: a leading minus counts as a digit, whatever follows from that.

/// The digits from the first one that is not "0" on, behind "0" and the separator unless
/// `as_integer`. Zeros at the end stay: *1200* gives *0.1200*.
NumberText Get_Mantissa(std::string_view num, bool as_integer);

/// The power of ten that belongs to that mantissa: 3 for *123.45*, -2 for *0.00123*, 0 for *0*.
NumberText Get_Exponent(std::string_view num);

/// The mantissa times ten to the exponent in 64-bit floats, so with 15 digits at most. Fails with
/// type_mismatch for what is no number, with overflow beyond floats and 32-bit exponents.
NumberText Combine_Mantissa_And_Exponent(std::string_view mantissa, std::string_view exponent);

/// The number taken apart and joined again. Fails as joining does.
NumberText Test_Mantissa_And_Exponent(std::string_view num);

}  // namespace quorvex
