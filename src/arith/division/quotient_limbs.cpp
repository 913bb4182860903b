#include "arith/division/quotient_limbs.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "expects.h"
#include "host/platform.h"

namespace quorvex::limbs {
namespace {

using Signed_Limb = std::int64_t;
__extension__ using Signed_Wide = __int128;

Limb High(Wide wide) {
  return static_cast<Limb>(wide >> 64U);
}

// The quotient by the base, or up to 52 less.
Wide Over_Base(Wide wide) {
  constexpr auto bases_in_word = static_cast<Limb>((Wide{1} << 123U) / base);
  return Wide{High(wide)} * bases_in_word >> 59U;
}

// Guesses limbs by the two highest of the divisor. No guess is too large; what it is too small by
// goes on in the rest, which so stays below 2.2 divisors: the cut of the rest costs 0.44 units at
// most and that of the guess one, those of divisor and reciprocal 0.34 (0.36 where the rest's costs
// half) for each divisor in the rest.
class Guesser {
 public:
  explicit Guesser(Wide divisor)
      : shift_(static_cast<unsigned>(std::bit_width(High(divisor))) + 1),  // to 63 bits
        reciprocal_(static_cast<Signed_Limb>((Wide{base} << 65U) /
                                             (static_cast<Limb>(divisor >> shift_) + 1))) {}

  // `rest` may be a little below 0.
  Limb guess(Wide rest) const {
    const auto high = static_cast<Signed_Limb>(static_cast<Signed_Wide>(rest) >> (shift_ + 1));
    const auto guess = static_cast<Signed_Limb>(Signed_Wide{high} * reciprocal_ >> 64U);
    return guess < 0 ? 0 : static_cast<Limb>(guess);
  }

 private:
  unsigned shift_;
  Signed_Limb reciprocal_;
};

// Of limbs before `end`, from there back, by those of the divisor onward.
Wide Sum_Of_Products(const Limb* end, const Limb* divisor, std::size_t count) {
  Wide even = 0;
  Wide odd = 0;
  for (; count >= 4; count -= 4) {
    end -= 4;
    even += Wide{end[3]} * divisor[0];
    odd += Wide{end[2]} * divisor[1];
    even += Wide{end[1]} * divisor[2];
    odd += Wide{end[0]} * divisor[3];
    divisor += 4;
  }
  for (; count > 0; --count) even += Wide{*--end} * *divisor++;
  return even + odd;
}

// What limbs hold beyond the base goes to the one above.
void Pass_Carries_Up(Limb* limbs, std::size_t count) {
  Limb carry = 0;
  for (std::size_t place = count; place-- > 0;) {
    const Limb limb = limbs[place] + carry;
    carry = static_cast<Limb>(limb >= base) + static_cast<Limb>(limb >= 2 * base);
    limbs[place] = limb - carry * base;
  }
  Expects(carry == 0);
}

}  // namespace

Fraction Read_Down(std::string_view text, std::size_t zeros, std::size_t count, Limb* out) {
  std::size_t place = 0;
  for (std::size_t length = digits - zeros; place < count && !text.empty(); length = digits) {
    const std::string_view piece = text.substr(0, length);
    out[place++] = Read(piece) * Ten_To(length - piece.size());
    text.remove_prefix(piece.size());
    if (place % between_yields == 0) Yield();
  }
  return {out, place};
}

Pair Divide_Pairs(Pair x, Limb further, Pair d) {
  Expects(d.high >= base / 10 && d.high < base && x.wide() <= d.wide());
  const Wide divisor = d.wide();
  const Guesser guesser(divisor);
  Pair quotient;
  quotient.high = guesser.guess(x.wide());
  // Modulo 2^128, as what passes that goes again.
  quotient.low = guesser.guess(x.wide() * base + further - quotient.high * divisor);
  const Limb carry =
      static_cast<Limb>(quotient.low >= base) + static_cast<Limb>(quotient.low >= 2 * base);
  return {quotient.high + carry, quotient.low - carry * base};
}

// Column m of x - d q is x_m less the products of limbs whose places add up to m. `left` is the
// rest down to the column of the limb that comes next, which so sums products one by one, and
// modulo 2^128, as the sums are only passing by. The guess takes the column below into account:
// as many bases as it holds. All columns further down are worth less than 2.2 for each limb.
void Divide_Fractions(Fraction x, Fraction d, std::size_t count, Limb* quotient) {
  d.count = std::min(d.count, count + 1);
  Expects(count > 0 && std::min(count, d.count) <= most_quotient_limbs);
  Expects(d[0] >= base / 10 && d[0] < base && x[0] <= d[0]);
  constexpr Limb further_down = 512;  // and what is cut off
  const Wide top = Wide{d[0]} * base + d[1];
  const Limb third = d[2];
  const auto third_in_bases = static_cast<Limb>(Over_Base(Wide{third} << 64U));
  const Guesser guesser(top);
  const std::size_t further =
      d.count - std::min<std::size_t>(d.count, 3);  // limbs behind the third

  Wide left = Wide{x[0]} * base + x[1];
  Wide guessed_from = left;
  Wide below = 0;  // the products in the next column, without that of the latest limb
  std::size_t products = 0;
  for (std::size_t place = 0;; ++place) {
    const Limb limb = guesser.guess(guessed_from);
    quotient[place] = limb;
    if (place + 1 == count) break;
    left = left * base + x[place + 2] - below - limb * top;
    const std::size_t earlier = std::min(place, further);
    const Wide column = Sum_Of_Products(quotient + place, d.limbs + (d.count - further), earlier);
    guessed_from = left - Over_Base(column) - High(Wide{limb} * third_in_bases) - further_down;
    below = column + Wide{limb} * third;
    products += earlier + 1;
    if (products < between_yields) continue;
    products = 0;
    Yield();
  }
  Pass_Carries_Up(quotient, count);
}

}  // namespace quorvex::limbs
