// Sums and differences of short plain numbers, from text to text in one go.
#pragma once

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// The most digits that a number may have on either side of its separator here.
inline constexpr std::size_t most_short_digits = 120;

inline bool Is_Short(const Plain_Number& number) {
  return number.parts.integer.size() <= most_short_digits &&
         number.parts.fraction.size() <= most_short_digits;
}

/// The sum of two short numbers as it is written without any format: with a leading minus below
/// zero, and without zeros that mean nothing.
NumberText Short_Sum(const Plain_Number& a, const Plain_Number& b);

}  // namespace quorvex
