// Numbers as floats with a power of ten of their own, for what is only told by its leading digits.
#pragma once

#include <cstdint>

#include "arith/limbs/limb_number.h"

namespace quorvex {

/// The mantissa, 1 to below 10 in magnitude, times ten to the power; 0 has a mantissa of 0.
struct Leading_Digits {
  double mantissa = 0;
  std::int64_t power = 0;

  /// The number as a float, where it has room.
  double number() const;
};

/// Brings any mantissa between 1 and 10.
Leading_Digits Scaled(double mantissa, std::int64_t power);

/// To the accuracy of a float.
Leading_Digits Leading_Digits_Of(const limbs::Number& number);

/// What stands behind a number's power of ten `last`, as a part of one unit there, and the first
/// digits of it at least. The number is positive.
double Part_Behind(const limbs::Number& number, std::int64_t last);

/// A whole number below 10^18 in magnitude, times a power of ten.
limbs::Number Short_Number(std::int64_t whole, std::int64_t power);

}  // namespace quorvex
