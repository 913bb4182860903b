#include "arith/limb_reciprocal.h"

#include <algorithm>
#include <bit>

namespace quorvex::limbs {
namespace {

// Finds limbs of a quotient: D. E. Knuth, The Art of Computer Programming, vol. 2, 3rd ed., 4.3.1,
// algorithm D, with the guess made from the two highest limbs.
class Long_Division {
 public:
  Long_Division(const Limb* divisor, std::size_t n, Limb* rest)
      : divisor_(divisor), n_(n), rest_(rest) {
    const Wide top = Two_Limbs(divisor);
    const auto high = static_cast<Limb>(top >> 64U);
    shift_ = high == 0 ? 64U + static_cast<unsigned>(std::countl_zero(static_cast<Limb>(top)))
                       : static_cast<unsigned>(std::countl_zero(high));
    const Wide above = (top << shift_ >> 64U) + 1;
    reciprocal_ = static_cast<Limb>((Wide{base} << 64U) / above);
  }

  // The next limb of the quotient.
  Limb next() {
    // With 64 bits of both tops, and what the divisions drop, the guess is at most 3 too small.
    const auto top = static_cast<Limb>(Two_Limbs(rest_) << shift_ >> 64U);
    auto quotient = static_cast<Limb>(Wide{top} * reciprocal_ >> 64U);
    Limb above = take_off(quotient);
    while (above > 0 || !is_below_divisor()) {
      above -= take_divisor_off();
      ++quotient;
    }
    return quotient;
  }

  bool has_rest() const {
    return std::any_of(rest_, rest_ + n_, [](Limb limb) { return limb != 0; });
  }

 private:
  Wide Two_Limbs(const Limb* number) const { return Wide{number[n_ - 1]} * base + number[n_ - 2]; }

  // rest = rest * base - quotient * divisor; what stands above n limbs is returned.
  //
  // The high part of a product comes from the quotient's fraction of the base in 64 bits, which is
  // at most 3 of 2^-64 too small: so it is right or one too small, and the low part tells.
  Limb take_off(Limb quotient) {
    constexpr auto scaled_reciprocal = static_cast<Limb>((Wide{1} << 123U) / base);
    const auto fraction = static_cast<Limb>(Wide{quotient} * scaled_reciprocal >> 59U);
    Limb below = 0;  // the limb of the rest that moves up here
    Limb owed = 0;   // the high part of the product before, and the borrow
    for (std::size_t place = 0; place < n_; ++place) {
      auto high = static_cast<Limb>(Wide{fraction} * divisor_[place] >> 64U);
      Limb low = quotient * divisor_[place] - high * base;
      const bool is_more = low >= base;
      low -= is_more ? base : 0;
      high += is_more ? 1 : 0;
      // From -2 base to base - 1.
      auto difference = static_cast<std::int64_t>(below - low - owed);
      const Limb borrow = static_cast<Limb>(difference < 0) +
                          static_cast<Limb>(difference < -static_cast<std::int64_t>(base));
      below = rest_[place];
      rest_[place] = static_cast<Limb>(difference) + borrow * base;
      owed = high + borrow;
    }
    return below - owed;
  }

  bool is_below_divisor() const {
    for (std::size_t place = n_; place-- > 0;) {
      if (rest_[place] != divisor_[place]) return rest_[place] < divisor_[place];
    }
    return false;
  }

  // Returns what is borrowed from above the n limbs.
  Limb take_divisor_off() {
    Limb borrow = 0;
    for (std::size_t place = 0; place < n_; ++place) {
      const Limb difference = rest_[place] - divisor_[place] - borrow;
      borrow = difference >> 63U;
      rest_[place] = difference + borrow * base;
    }
    return borrow;
  }

  const Limb* divisor_;
  std::size_t n_;
  Limb* rest_;
  unsigned shift_ = 0;
  Limb reciprocal_ = 0;
};

}  // namespace

bool Divide_Into_One(const Limb* divisor, std::size_t n, Limb* quotient, std::size_t count,
                     Limb* rest) {
  std::fill_n(rest, n - 1, 0);
  rest[n - 1] = 1;
  Long_Division division(divisor, n, rest);
  for (std::size_t place = 0; place < count; ++place) quotient[place] = division.next();
  return !division.has_rest();
}

}  // namespace quorvex::limbs
