// Products of middling operands: three products of half the length in place of four.
#pragma once

#include "native/generic/limbs.h"

namespace quorvex::native {

/// From this many limbs on it is faster than the plain kernel, as measured.
inline constexpr std::size_t karatsuba_from = 32;

/// The most limbs that the shorter operand may have.
inline constexpr std::size_t karatsuba_ceiling = 272;

/// Writes the 2 * count limbs of a * b, or of a square if they are the same. `out` overlaps neither
/// operand.
void Multiply_Karatsuba(Limb* out, const Limb* a, const Limb* b, std::size_t count);

/// The limbs of scratch for a shorter operand of so many: what the remainders of cutting need on
/// the way down, which sum to at most three times the length.
constexpr std::size_t Pieces_Scratch(std::size_t count) {
  return 6 * count;
}

/// Writes the a_count + b_count limbs of a * b; `a`, the longer operand, is cut into pieces of b's
/// length. `scratch` holds Pieces_Scratch(b_count) limbs.
void Multiply_In_Pieces(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                        std::size_t b_count, Limb* scratch);

}  // namespace quorvex::native
