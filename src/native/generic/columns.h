// Columns of products of limbs: four at a time are summed up, and fall apart into limbs.
#pragma once

#include <algorithm>
#include <cstddef>

#include "native/generic/digit_words.h"
#include "native/generic/limbs.h"

namespace quorvex::native {

/// Makes limbs of columns of up to 340 products, from the lowest.
///
/// The high word of a column counts 2^64 = 18 * 10^18 + r: eighteen times itself goes to the next
/// column at once, so that all columns need but one division each, none of which waits for those
/// below. With r the low word stays below 8.4 * 10^36: a limb below 3.6 bases and a quotient below
/// 8.4.
class Column_Sum {
 public:
  Limb next(Wide column) {
    column += from_high_;
    const auto high = static_cast<Limb>(column >> 64U);
    from_high_ = Wide{high} * (two_to_64 / limb_base);
    const Wide rest =
        Wide{high} * static_cast<Limb>(two_to_64 % limb_base) + static_cast<Limb>(column);
    constexpr unsigned shift = 59;
    constexpr auto reciprocal = static_cast<Limb>((Wide{1} << (64U + shift)) / limb_base);
    const auto quotient =
        static_cast<Limb>(Wide{static_cast<Limb>(rest >> shift)} * reciprocal >> 64U);
    const Limb sum = static_cast<Limb>(rest) - quotient * limb_base + from_below_;
    from_below_ = quotient;
    const Limb bases = sum / limb_base;
    const Limb limb = sum - bases * limb_base + carry_;
    const auto runs_over = static_cast<Limb>(limb >= limb_base);
    carry_ = bases + runs_over;
    return limb - runs_over * limb_base;
  }

 private:
  static constexpr Wide two_to_64 = Wide{1} << 64U;

  Wide from_high_ = 0;
  Limb from_below_ = 0;
  Limb carry_ = 0;
};

inline constexpr std::size_t columns_in_block = 4;

/// Adds a[i] * b[c - i] for each `i` below `count` to the columns c from 0 to 3; zeros stand for
/// what columns have beyond the ends of `b`. So a factor is loaded for all of them, and there is
/// one end of a loop to guess in place of four.
static inline void Add_Block(Wide (&sums)[columns_in_block], const Limb* a, const Limb* b,
                             std::size_t count) {
  Wide sum0 = sums[0];
  Wide sum1 = sums[1];
  Wide sum2 = sums[2];
  Wide sum3 = sums[3];
  for (const Limb* const end = a + count; a != end; ++a, --b) {
    const Limb factor = *a;
    sum0 += Wide{factor} * b[0];
    sum1 += Wide{factor} * b[1];
    sum2 += Wide{factor} * b[2];
    sum3 += Wide{factor} * b[3];
    // Keeps compilers from holding what the next step loads again: there is no room for it.
    __asm__("" : "+r"(b));
  }
  sums[0] = sum0;
  sums[1] = sum1;
  sums[2] = sum2;
  sums[3] = sum3;
}

/// Hands `count` columns to `put`, each with its place from the lowest, which `sum` tells by
/// blocks: beyond the last, zeros.
template <typename Sum, typename Put>
inline void Put_Blocks(std::size_t count, const Sum& sum, const Put& put) {
  std::size_t k = 0;
  for (; k + columns_in_block <= count; k += columns_in_block) {
    Wide sums[columns_in_block] = {};
    sum(k, sums);
    for (std::size_t c = 0; c < columns_in_block; ++c) put(k + c, sums[c]);
  }
  if (k == count) return;
  Wide sums[columns_in_block] = {};
  sum(k, sums);
  for (std::size_t c = 0; k < count; ++k, ++c) put(k, sums[c]);
}

}  // namespace quorvex::native
