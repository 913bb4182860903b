// The exact product of two whole numbers given as decimal text: what stands behind the exported
// routine, for calls within one program.
#pragma once

#include <cstddef>
#include <string_view>

#include "native/generic/instructions.h"

namespace quorvex::native {

/// Writes the product, without a leading zero, to the front of `out` and returns its count of
/// digits; the rest of `out` stays as it is. Returns 0 and writes nothing if an operand is empty or
/// holds anything but digits, if their digits together pass `room`, or if memory runs out. Twice
/// the length of the longer operand is always room enough.
std::size_t Multiply_Texts(std::string_view a, std::string_view b, char* out,
                           std::size_t room) noexcept;

/// The same with instructions of one kind, which this machine must have.
std::size_t Multiply_Texts(std::string_view a, std::string_view b, char* out, std::size_t room,
                           Instructions kind) noexcept;

}  // namespace quorvex::native
