// The square root by completing the square: with the root S of what stands before, and R left of
// that, the next limb q is about R base / (2 S), and leaves R base^2 + (two limbs) - q (2 S base +
// q). (P. Zimmermann, Karatsuba Square Root, INRIA RR-3805, 1999, has the step for parts of any
// size.)
#include "arith/powers/limb_root.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "arith/limbs/limb_division.h"
#include "arith/limbs/limbs.h"
#include "expects.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;
using limbs::Wide;

using Signed_Limb = std::int64_t;
__extension__ using Signed_Wide = __int128;
constexpr auto signed_base = static_cast<Signed_Limb>(limbs::base);
constexpr auto limb_digits = static_cast<std::int64_t>(limbs::digits);

std::int64_t Half_Of_Power(std::int64_t power) {
  return (power - (power < 0 ? 1 : 0)) / 2;
}

// The limbs of a radicand from the highest, moved by digits until the highest has 17 or 18, so that
// the root's highest has 18.
class Radicand_Limbs {
 public:
  explicit Radicand_Limbs(const Number& number) : next_(number.data() + number.count()) {
    first_ = number.data();
    const std::int64_t power = limbs::Leading_Power(number);
    const std::size_t wanted = power % 2 == 0 ? limbs::digits - 1 : limbs::digits;
    const std::size_t present = limbs::Count_Digits(*(next_ - 1));
    const std::size_t moved = wanted >= present ? wanted - present : limbs::digits - 1;
    up_ = limbs::Ten_To(moved);
    down_ = limbs::Ten_To(limbs::digits - moved);
    if (wanted >= present) left_ = take();
  }

  Limb next() {
    const Limb limb = take();
    const Limb above = limb / down_;
    const Limb moved = left_ * up_ + above;
    left_ = limb - above * down_;
    return moved;
  }

 private:
  Limb take() { return next_ == first_ ? 0 : *--next_; }

  const Limb* first_;
  const Limb* next_;
  Limb up_ = 1;
  Limb down_ = 1;
  Limb left_ = 0;  // the digits of the last limb that move up with the next one
};

// The root of a number from 10^34 to below 10^36, rounded down. That of its float is right to 2^-52
// of itself, and what is left tells the rest.
Limb Root_Of_Two(Wide number) {
  auto root = static_cast<Limb>(std::sqrt(static_cast<double>(number)));
  const auto left = static_cast<Signed_Wide>(number - Wide{root} * root);
  root += static_cast<Limb>(
      static_cast<Signed_Limb>(static_cast<double>(left) / (2 * static_cast<double>(root))));
  while (Wide{root} * root > number) --root;
  while (number - Wide{root} * root > 2 * Wide{root}) ++root;
  return root;
}

class Root_Digits {
 public:
  explicit Root_Digits(const Number& radicand, std::size_t count) : radicand_(radicand) {
    const Limb high = radicand_.next();
    const Wide first = Wide{high} * limbs::base + radicand_.next();
    root_[0] = Root_Of_Two(first);
    const Wide left = first - Wide{root_[0]} * root_[0];
    rest_[0] = static_cast<Signed_Limb>(left / limbs::base);
    rest_[1] = static_cast<Signed_Limb>(left % limbs::base);
    for (count_ = 1; count_ < count;) {
      if (count_ <= 2) prepare_guess();
      add_limb();
    }
  }

  const Limb* limbs() const { return root_.data(); }

 private:
  // As in long division, by the two highest limbs of the twofold root.
  void prepare_guess() {
    const Wide twice = 2 * (Wide{root_[0]} * limbs::base + (count_ > 1 ? root_[1] : 0));
    shift_ = static_cast<unsigned>(std::bit_width(static_cast<Limb>(twice >> 64U))) + 1;
    reciprocal_ =
        static_cast<Limb>((Wide{limbs::base} << 66U) / (static_cast<Limb>(twice >> shift_) + 1));
  }

  // No more than the limb that division finds, and less than two less.
  Limb guess() const {
    const Wide top = Wide{static_cast<Limb>(rest_[0] * signed_base + rest_[1])} * limbs::base +
                     static_cast<Limb>(rest_[2]);
    const auto limb =
        static_cast<Limb>(Wide{static_cast<Limb>(top >> shift_)} * reciprocal_ >> 66U);
    return limb < limbs::base ? limb : limbs::base - 1;
  }

  // The rest has a limb more than the root, the highest small.
  void add_limb() {
    rest_[count_ + 1] = static_cast<Signed_Limb>(radicand_.next());
    rest_[count_ + 2] = static_cast<Signed_Limb>(radicand_.next());
    const Limb q = guess();
    const Limb twice = 2 * q;
    root_[count_] = q;
    ++count_;
    Wide column = Wide{q} * q;
    for (std::size_t place = count_ + 1; place >= 2; --place) {
      const auto limb = static_cast<Signed_Limb>(limbs::Take_Limb(column));
      const Signed_Limb less = rest_[place] - limb;
      const Signed_Limb borrow = less < 0 ? 1 : 0;
      rest_[place] = less + borrow * signed_base;
      column += static_cast<Limb>(borrow);
      if (place > 2) column += Wide{twice} * root_[place - 3];
    }
    const Signed_Limb high =
        rest_[0] * signed_base + rest_[1] - static_cast<Signed_Limb>(static_cast<Limb>(column));
    for (std::size_t place = 1; place <= count_; ++place) rest_[place] = rest_[place + 1];
    rest_[0] = high;
    while (rest_[0] < 0) take_back();
    while (is_too_small()) take_more();
  }

  // rest > 2 root. What stands behind a place makes up for less than three of its units.
  bool is_too_small() const {
    Signed_Limb more = rest_[0];
    for (std::size_t place = 0; place < count_; ++place) {
      if (more > 3 || more < -3) break;
      more = more * signed_base + rest_[place + 1] - static_cast<Signed_Limb>(2 * root_[place]);
    }
    return more > 0;
  }

  void take_back() {
    add_to_root(-1);
    add_twice_root(1);
  }

  void take_more() {
    add_twice_root(-1);
    add_to_root(1);
  }

  void add_to_root(Signed_Limb unit) {
    std::size_t place = count_ - 1;
    auto limb = static_cast<Signed_Limb>(root_[place]) + unit;
    for (; limb < 0 || limb >= signed_base;
         limb = static_cast<Signed_Limb>(root_[--place]) + unit) {
      root_[place] = static_cast<Limb>(limb - unit * signed_base);
    }
    root_[place] = static_cast<Limb>(limb);
  }

  // rest += sign (2 root + 1).
  void add_twice_root(Signed_Limb sign) {
    Signed_Limb carry = sign;
    for (std::size_t place = count_; place > 0; --place) {
      Signed_Limb limb =
          rest_[place] + sign * static_cast<Signed_Limb>(2 * root_[place - 1]) + carry;
      carry = 0;
      for (; limb < 0; limb += signed_base) --carry;
      for (; limb >= signed_base; limb -= signed_base) ++carry;
      rest_[place] = limb;
    }
    rest_[0] += carry;
  }

  Radicand_Limbs radicand_;
  std::size_t count_ = 0;  // of the root's limbs, the highest first
  std::array<Limb, most_limbs_in_turn> root_;
  std::array<Signed_Limb, most_limbs_in_turn + 2> rest_;
  unsigned shift_ = 0;
  Limb reciprocal_ = 0;
};

}  // namespace

Number Root_In_Turn(const Number& radicand, std::size_t count) {
  Expects(!radicand.is_zero() && !radicand.negative && count > 0 && count <= most_limbs_in_turn);
  const Root_Digits digits(radicand, count);
  // The digits begin behind the root's leading power; limbs stand where every number's do.
  const std::int64_t power = Half_Of_Power(limbs::Leading_Power(radicand)) + 1;
  const std::int64_t top = (power + (power > 0 ? limb_digits - 1 : 0)) / limb_digits;
  const auto down = static_cast<std::size_t>(top * limb_digits - power);
  const Limb up = limbs::Ten_To((limbs::digits - down) % limbs::digits);
  std::array<Limb, most_limbs_in_turn + 1> moved;
  Wide column = 0;
  for (std::size_t place = 0; place < count; ++place) {
    column += Wide{digits.limbs()[count - 1 - place]} * up;
    moved[place] = limbs::Take_Limb(column);
  }
  moved[count] = static_cast<Limb>(column);
  const auto whole = static_cast<std::int64_t>(count) + (down > 0 ? 1 : 0);
  Number root;
  limbs::Trim({moved.data(), count + 1, top - whole, false}, root);
  return root;
}

}  // namespace quorvex
