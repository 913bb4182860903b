// Division of rows of limbs by small numbers, many of them side by side.
#pragma once

#include <bit>

#include "arith/limbs/limbs.h"
#include "expects.h"

namespace quorvex::limbs {

/// A divisor from 2 to below 2^31, so small that a dividend is a word and not two.
///
/// With base = d bases + rest_of_base, what is left of the limbs above, r, and the next limb make
/// r base + limb = d (r bases) + (r rest_of_base + limb). What has to be divided is below
/// 2^62 + limb, and a product with a reciprocal rounded up does it:
///
/// T. Granlund, P. L. Montgomery, Division by invariant integers using multiplication, PLDI 1994,
/// theorem 4.2: for 2^(l - 1) < d <= 2^l and m = ceil(2^(63 + l) / d), floor(n m / 2^(63 + l)) is
/// floor(n / d) for all n below 2^63, since m d is at most 2^l more than 2^(63 + l).
class Row_Divisor {
 public:
  static constexpr Limb end = Limb{1} << 31U;

  explicit Row_Divisor(Limb number)
      : number_(number),
        bases_(base / number),
        rest_of_base_(base % number),
        shift_(static_cast<unsigned>(std::bit_width(number - 1)) - 1),
        reciprocal_(static_cast<Limb>((Wide{1} << (64U + shift_)) / number +
                                      static_cast<Limb>(!std::has_single_bit(number)))),
        lift_(bases_ + bases_ / 2 + 3) {
    Expects(number >= 2 && number < end);
  }

  /// Divides rest * base + limb, for limbs below 4.6 * 10^18; `rest` becomes the new rest.
  Limb divide(Limb& rest, Limb limb) const {
    Expects(rest < number_);
    const Limb dividend = rest * rest_of_base_ + limb;
    Expects(dividend >> 63U == 0);
    const auto quotient = static_cast<Limb>(Wide{dividend} * reciprocal_ >> 64U) >> shift_;
    const Limb above = rest * bases_;
    rest = dividend - quotient * number_;
    return above + quotient;
  }

  /// The same for one of -1.5 to 3 bases, rounded down.
  std::int64_t divide_signed(Limb& rest, std::int64_t limb) const {
    // Lifted by a multiple of the divisor, no less than 1.5 bases and hardly more.
    const Limb lifted = static_cast<Limb>(limb) + lift_ * number_;
    return static_cast<std::int64_t>(divide(rest, lifted) - lift_);
  }

 private:
  Limb number_;
  Limb bases_;
  Limb rest_of_base_;
  unsigned shift_;
  Limb reciprocal_;
  Limb lift_;
};

}  // namespace quorvex::limbs
