// Divisions by one limb without a division instruction.
//
// N. Moeller, T. Granlund, Improved division by invariant integers, IEEE Trans. Computers 60
// (2011): the reciprocal of section 2 and algorithm 4. The divisor is shifted until its high bit is
// set.
#pragma once

#include <bit>

#include "arith/limbs/limbs.h"
#include "expects.h"

namespace quorvex::limbs {

constexpr Limb Reciprocal_Of(Limb shifted) {
  return static_cast<Limb>(((Wide{~shifted} << 64U) | ~Limb{0}) / shifted);
}

/// Divides by a number that is shifted to the top. The quotient fits 64 bits.
inline Limb Divide_Shifted(Wide dividend, Limb divisor, Limb reciprocal, Limb& rest) {
  const auto high = static_cast<Limb>(dividend >> 64U);
  Expects(divisor >> 63U == 1 && high < divisor);
  const auto low = static_cast<Limb>(dividend);
  const Wide guess = Wide{reciprocal} * high + (Wide{high + 1} << 64U) + low;
  auto quotient = static_cast<Limb>(guess >> 64U);
  rest = low - quotient * divisor;
  // Half of all guesses are one too large, so this takes no branch.
  const Limb too_large = Limb{0} - static_cast<Limb>(rest > static_cast<Limb>(guess));
  quotient += too_large;
  rest += too_large & divisor;
  if (rest >= divisor) {
    ++quotient;
    rest -= divisor;
  }
  return quotient;
}

/// Takes the lowest limb off a column of at most nine products; what is left is the carry into the
/// next.
inline Limb Take_Limb(Wide& column) {
  constexpr unsigned shift = 4;
  Expects(column >> (128 - shift) == 0);
  constexpr Limb divisor = base << shift;
  constexpr Limb reciprocal = Reciprocal_Of(divisor);
  Limb rest = 0;
  column = Divide_Shifted(column << shift, divisor, reciprocal, rest);
  return rest >> shift;
}

/// Division by a number of one limb.
class Divisor {
 public:
  explicit Divisor(Limb number)
      : number_(number),
        shift_(static_cast<unsigned>(std::countl_zero(number))),
        shifted_(number << shift_),
        reciprocal_(Reciprocal_Of(shifted_)) {
    Expects(number < base);
  }

  Limb number() const { return number_; }

  /// The places that bring the number's highest bit to the top, and 2^128 over the number there,
  /// rounded down, less 2^64.
  unsigned shift() const { return shift_; }
  Limb reciprocal() const { return reciprocal_; }

  /// Divides rest * base + limb; `rest` becomes the new rest.
  Limb divide(Limb& rest, Limb limb) const {
    Expects(rest < number_);
    Limb shifted_rest = 0;
    const Limb quotient =
        Divide_Shifted((Wide{rest} * base + limb) << shift_, shifted_, reciprocal_, shifted_rest);
    rest = shifted_rest >> shift_;
    return quotient;
  }

  /// What division leaves of a dividend below 2^64 times the number.
  Limb rest_of(Wide dividend) const {
    Limb shifted_rest = 0;
    Divide_Shifted(dividend << shift_, shifted_, reciprocal_, shifted_rest);
    return shifted_rest >> shift_;
  }

 private:
  Limb number_;
  unsigned shift_;
  Limb shifted_;
  Limb reciprocal_;
};

}  // namespace quorvex::limbs
