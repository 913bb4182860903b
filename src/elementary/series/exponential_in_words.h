// e to a small power in binary words.
#pragma once

#include <cstddef>

#include "arith/limbs/limb_number.h"

namespace quorvex {

/// As `Exponential_Less_One`, of up to 3000 digits.
///
/// The argument is halved h times, and Taylor's series summed by groups of m powers y to y^m. Of a
/// group, terms up to four are divided together: with K = (a + 1) (a + 2) ..., the part of the
/// series from y / (a + 1) on is (y K / (a + 1) + y^2 K / (a + 1) (a + 2) + ... + the rest) / K.
/// The rest behind a group is multiplied by y^m. Then (1 + y)^2 - 1 = y (2 + y) undoes the
/// halvings.
///
/// In units of the last of w words: y is less than 3 too small, and each power, a product of two
/// below 0.1, less than 2 w + 6. What counts as y^k / k! for the sum has so much less words that it
/// adds no more. All powers together cost less than 1.72 times 2 w + 7, divisions and what is left
/// out 4, and products, which are divided by 24 or more, less than w + 2: less than 5 w + 19. A
/// square doubles that times 1 + y, and all 1 + y together are below 1.24, and adds w + 2: that
/// is below 2^h 1.24 (6 w + 21).
limbs::Number Exponential_In_Words(const limbs::Number& r, std::size_t digits);

}  // namespace quorvex
