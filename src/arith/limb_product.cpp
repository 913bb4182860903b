// Products of numbers in limbs, of which only so many digits are wanted.
#include <algorithm>

#include "arith/limb_number.h"
#include "arith/multiply_digits.h"

namespace quorvex::limbs {
namespace {

// A column, below 340 * 10^36, as three numbers that count for it, its neighbour and the next:
// below 3.2 and 2.1 bases, and 340.
struct Parted {
  Limb limb;
  Limb above;
  Limb far_above;
};

Parted Part(Wide column) {
  constexpr Wide square = Wide{base} * base;
  constexpr auto square_high = static_cast<Limb>(square >> 64U) + 1;
  const Limb far_above = static_cast<Limb>(column >> 64U) / square_high;
  column -= far_above * square;
  constexpr unsigned shift = 57;
  constexpr auto reciprocal = static_cast<Limb>((Wide{1} << (64U + shift)) / base);
  const auto above =
      static_cast<Limb>(Wide{static_cast<Limb>(column >> shift)} * reciprocal >> 64U);
  return {static_cast<Limb>(column) - above * base, above, far_above};
}

Wide Column(const Limb* x, const Limb* y, std::size_t count) {
  Wide column = 0;
  for (std::size_t i = 0; i < count; ++i) column += Wide{x[i]} * *(y - i);
  return column;
}

// Limbs of the columns from `first` on: those below are left out. Columns are parted before they
// are added, so that none waits for the carries of those below it.
void Multiply_From(Limb* out, const Number& a, const Number& b, std::size_t first) {
  const std::size_t x_count = a.count();
  const std::size_t y_count = b.count();
  Limb from_below = 0;
  Limb from_far_below = 0;
  Limb carry = 0;
  const auto add = [&](const Parted& parted) {
    const Limb sum = parted.limb + from_below;
    const Limb bases = sum / base;
    const Limb limb = sum - bases * base + carry;
    const auto runs_over = static_cast<Limb>(limb >= base);
    carry = bases + runs_over;
    from_below = parted.above + from_far_below;
    from_far_below = parted.far_above;
    return limb - runs_over * base;
  };
  for (std::size_t place = first; place + 1 < x_count + y_count; ++place) {
    const std::size_t begin = place < y_count ? 0 : place - y_count + 1;
    const std::size_t end = std::min(place + 1, x_count);
    out[place] = add(Part(Column(a.data() + begin, b.data() + (place - begin), end - begin)));
  }
  out[x_count + y_count - 1] = add({});
}

// Of so many limbs in the shorter factor, products by the library cost less than those of limbs.
constexpr std::size_t long_factor = 100;

// The lowest column to begin with. What those below it add stays below a unit for each limb of the
// shorter factor in the limb above it: that limb guards those above, one of which holds the first
// digit that is dropped.
std::size_t First_Column(std::size_t count, std::size_t digits_kept) {
  const std::size_t needed = Count_For(digits_kept) + 4;
  return count > needed + 2 ? count - needed : 0;
}

// All digits of the limbs, from the first that is not 0.
NumberText Digits_Of(const Number& number) {
  NumberText text(number.count() * digits, '0');
  for (std::size_t place = 0; place < number.count(); ++place) {
    Write(text.data() + text.size() - (place + 1) * digits, number.data()[place]);
  }
  return text.erase(0, digits - Count_Digits(number.data()[number.count() - 1]));
}

// By the library of products.
Number Long_Product(const Number& a, const Number& b, std::size_t digits_kept) {
  const NumberText product = Multiply_Digits(Digits_Of(a), Digits_Of(b));
  const std::size_t count = Count_For(product.size());
  Scratch scratch(count + 1);
  Read_Number(product, scratch.data());
  return Rounded({scratch.data(), count, a.low + b.low, a.negative != b.negative}, digits_kept);
}

}  // namespace

Number Product(const Number& a, const Number& b, std::size_t digits_kept) {
  if (a.is_zero() || b.is_zero()) return {};
  if (std::min(a.count(), b.count()) >= long_factor) return Long_Product(a, b, digits_kept);
  const std::size_t count = a.count() + b.count();
  Scratch scratch(count + 1);
  Limb* const out = scratch.data();
  std::size_t first = First_Column(count, digits_kept);
  Multiply_From(out, a, b, first);
  if (first > 0 && out[first + 1] >= base - std::min(a.count(), b.count()) - 1) {
    first = 0;
    Multiply_From(out, a, b, first);
  }
  return Rounded({out + first, count - first, a.low + b.low + static_cast<std::int64_t>(first),
                  a.negative != b.negative},
                 digits_kept);
}

}  // namespace quorvex::limbs
