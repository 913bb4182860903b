// Fractions of decimals scaled to fractions of whole numbers.
#pragma once

#include <cstddef>

#include "host/host_value.h"

namespace quorvex {

/// No pair of `Decimal`: its texts are results as they stand, with the sign and the zeros that the
/// numbers came with, and two whole numbers have no place to keep.
struct Scaled_Fraction {
  NumberText A;
  NumberText B;
  std::size_t decimals = 0;  // A is the numerator times this power of ten
};

/// Both numbers without their separators, and with the zeros that bring them to one scale. Zeros at
/// the left stay. Where both have decimals and the numerator more, the divisor gets as many zeros
/// as its separator stands further to the right, which is another count: it fails with invalid_call
/// below 0. The numbers are in normal form.
Scaled_Fraction Scale_To_Whole(const NumberText& N, const NumberText& D);

}  // namespace quorvex
