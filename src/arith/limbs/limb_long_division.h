// Long division by a number of several limbs.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "arith/limbs/limbs.h"
#include "expects.h"

namespace quorvex::limbs {

using Signed_Limb = std::int64_t;
__extension__ using Signed_Wide = __int128;

inline constexpr auto signed_base = static_cast<Signed_Limb>(base);

/// Long division that corrects no guess: D. E. Knuth, The Art of Computer Programming, vol. 2, 3rd
/// ed., 4.3.1, algorithm D, with signed limbs.
///
/// A guess is never too large, and less than 1.84 too small; the limb of the dividend that comes in
/// is next to nothing in that. So the rest stays below 1.84 divisors, limbs of the quotient below
/// 1.84 bases, and what is too little is settled at the end. Limbs of the rest pass what they owe
/// to their neighbour alone, so that none waits for those below it. They stay between -0.6 and 1.2
/// bases, the highest below 1.9.
class Long_Division {
 public:
  /// `divisor` has `n` limbs. `rest` has as many, each between 0 and the base, and is less than the
  /// divisor: it is what the dividend begins with.
  Long_Division(const Limb* divisor, std::size_t n, Signed_Limb* rest)
      : divisor_(divisor), n_(n), rest_(rest) {
    Expects(n >= 2 && divisor[n - 1] >= base / 10 && divisor[n - 1] < base && is_below_divisor());
    const Wide top = Wide{divisor[n - 1]} * base + divisor[n - 2];
    const auto high = static_cast<Limb>(top >> 64U);
    shift_ = static_cast<unsigned>(std::bit_width(high)) + 1;  // to 63 bits
    reciprocal_ = static_cast<Limb>((Wide{base} << 66U) / (static_cast<Limb>(top >> shift_) + 1));
  }

  /// Takes the next limb of the dividend, and gives that of the quotient.
  Limb next(Limb limb) {
    const Limb quotient = guess();
    take_off(quotient, limb);
    return quotient;
  }

  /// Brings the rest between 0 and the divisor, and its limbs between 0 and the base. True if that
  /// takes a divisor off.
  bool settle() {
    pass_carries();
    if (is_below_divisor()) return false;
    for (std::size_t place = 0; place < n_; ++place) {
      rest_[place] -= static_cast<Signed_Limb>(divisor_[place]);
    }
    pass_carries();
    return true;
  }

 private:
  // The two highest limbs are at most three too high. 64 bits of both tops cost 0.22 and 0.4 of the
  // quotient's unit, the reciprocal 0.22, the cut 1.
  Limb guess() const {
    const Signed_Wide top = Signed_Wide{rest_[n_ - 1]} * signed_base + rest_[n_ - 2] - 3;
    if (top < 0) return 0;
    return static_cast<Limb>(Wide{static_cast<Limb>(top >> shift_)} * reciprocal_ >> 66U);
  }

  // rest = rest * base + limb - quotient * divisor.
  //
  // The high part of a product comes from the quotient as a fraction of the base in 62 bits, which
  // is less than two units too small: it is right or one too small, and the low part makes up.
  void take_off(Limb quotient, Limb limb_behind) {
    constexpr auto scale = static_cast<Limb>((Wide{1} << 123U) / base);
    const auto fraction = static_cast<Limb>(Wide{quotient} * scale >> 61U);
    const Limb* const divisor = divisor_;
    Signed_Limb* const rest = rest_;
    const std::size_t n = n_;
    auto below = static_cast<Signed_Limb>(limb_behind);  // the limb that moves up here
    Signed_Limb high_below = 0;
    Signed_Limb carry = 0;
    for (std::size_t place = 0; place < n; ++place) {
      const auto high = static_cast<Limb>(Wide{fraction} * (divisor[place] << 2U) >> 64U);
      const Limb low = quotient * divisor[place] - high * base;
      const Signed_Limb limb = below - static_cast<Signed_Limb>(low) - high_below;
      const Signed_Limb over = limb >> 60U;  // nearly as many bases
      below = rest[place];
      rest[place] = limb - over * signed_base + carry;
      carry = over;
      high_below = static_cast<Signed_Limb>(high);
    }
    rest[n - 1] += (below - high_below + carry) * signed_base;
  }

  // Brings all limbs but the highest between 0 and the base.
  void pass_carries() {
    for (std::size_t place = 0; place + 1 < n_; ++place) {
      while (rest_[place] < 0) {
        rest_[place] += signed_base;
        --rest_[place + 1];
      }
      while (rest_[place] >= signed_base) {
        rest_[place] -= signed_base;
        ++rest_[place + 1];
      }
    }
  }

  bool is_below_divisor() const {
    for (std::size_t place = n_; place-- > 0;) {
      const auto limb = static_cast<Signed_Limb>(divisor_[place]);
      if (rest_[place] != limb) return rest_[place] < limb;
    }
    return false;
  }

  const Limb* divisor_;
  std::size_t n_;
  Signed_Limb* rest_;
  unsigned shift_ = 0;
  Limb reciprocal_ = 0;
};

}  // namespace quorvex::limbs
