// Products of middling operands: three products of half the length in place of four.
#pragma once

#include "native/generic/limbs.h"

namespace quorvex::native {

/// The limbs of scratch that the two routines below need for operands of `count` limbs.
constexpr std::size_t Karatsuba_Scratch(std::size_t count) {
  return 4 * count + 512;
}

/// What the remainders of cutting need on the way down, which sum to at most three times the
/// length, and the last product of all.
constexpr std::size_t Pieces_Scratch(std::size_t count) {
  return 6 * count + Karatsuba_Scratch(count);
}

/// Writes the 2 * count limbs of a * b. Nothing overlaps.
void Multiply_Karatsuba(Limb* out, const Limb* a, const Limb* b, std::size_t count, Limb* scratch);

/// Writes the a_count + b_count limbs of a * b; `a`, the longer operand, is cut into pieces of b's
/// length. `scratch` holds Pieces_Scratch(b_count) limbs.
void Multiply_In_Pieces(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                        std::size_t b_count, Limb* scratch);

}  // namespace quorvex::native
