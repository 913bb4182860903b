// Points of ten or twelve digits, least first: whole numbers in doubles, as the transform takes
// them.
#pragma once

#include <cstddef>

#include "native/generic/field.h"

namespace quorvex::native {

static constexpr std::size_t Points_For(std::size_t digits, const Cut& cut) {
  return (digits + cut.digits - 1) / cut.digits;
}

/// Fills Points_For(count) points. False if a character is no digit.
bool Read_Points(const char* text, std::size_t count, const Cut& cut, double* points);

/// Writes a number, which isn't zero, of points of eight, ten or twelve digits, from its
/// first digit that isn't zero, and returns how many digits there are. Nothing is written behind
/// them.
std::size_t Write_Points(const double* points, std::size_t count, std::size_t digits, char* out);

}  // namespace quorvex::native
