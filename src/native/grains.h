// Text to balanced points for waves, and from the coefficients of a product to groups of digits, in
// general registers.
#pragma once

#include <cstddef>

#include "native/grain.h"

namespace quorvex::native {

/// Fills all of Grains_For, rounded up to a multiple of sixteen, with zeros behind the last. False
/// if a character is no digit.
bool Read_Grains(const char* text, std::size_t count, const Grain& grain, double* points);

/// Coefficients below 2^46 in size, two for each group, become groups at the front. There are as
/// many as fill up the last sixteen.
void Carry_Grains(double* points, std::size_t groups, const Grain& grain);

}  // namespace quorvex::native
