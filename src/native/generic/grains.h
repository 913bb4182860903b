// Text to balanced points for waves, and from the coefficients of a product to groups of digits, in
// general registers: of the coarse grain alone, which is all that kinds without a fine one meet.
#pragma once

#include <cstddef>

#include "native/generic/grain.h"

namespace quorvex::native {

/// Fills all of Grains_For, rounded up to a multiple of sixteen, with zeros behind the last. False
/// if a character is no digit.
bool Read_Grains(const char* text, std::size_t count, const Grain& grain, double* points);

/// Coefficients below 2^45 in size, two for each of `groups` groups, become the groups at the
/// front.
void Carry_Grains(double* points, std::size_t groups);

}  // namespace quorvex::native
