// Products of short operands, limb by limb: n * m multiplications of 64 by 64 bits.
#pragma once

#include "native/generic/digit_words.h"
#include "native/generic/limbs.h"

namespace quorvex::native {

/// The most limbs that the shorter operand may have; a column may have 340 products.
inline constexpr std::size_t schoolbook_ceiling = 64;

/// Writes all a_count + b_count limbs of the product. `out` overlaps neither operand.
void Multiply_Schoolbook(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                         std::size_t b_count);

/// The same for a * a, with half the multiplications.
void Square_Schoolbook(Limb* out, const Limb* a, std::size_t count);

/// Writes the columns of a * b, 2 * count of them, with nothing carried. A limb may be as large as
/// columns have room for.
void Multiply_To_Columns(Wide* out, const Limb* a, const Limb* b, std::size_t count);

}  // namespace quorvex::native
