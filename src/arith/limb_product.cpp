// Products of numbers in limbs, of which only so many digits are wanted.
#include <algorithm>

#include "arith/limb_division.h"
#include "arith/limb_number.h"

namespace quorvex::limbs {
namespace {

// Takes the lowest limb off a column of any number of products that 128 bits hold.
Limb Take_Limb_Of_Many(Wide& column) {
  const auto high = static_cast<Limb>(column >> 64U);
  const Limb above = high / base;
  Wide rest = (Wide{high - above * base} << 64U) | static_cast<Limb>(column);
  const Limb limb = Take_Limb(rest);
  column = (Wide{above} << 64U) + rest;
  return limb;
}

// Limbs from `first` on of the columns from there on: those below are left out. A column is below
// 340 * 10^36, and parted into three limbs before they are added, so that none waits for the
// carries of those below it.
void Multiply_From(Limb* out, const Number& a, const Number& b, std::size_t first) {
  const Limb* const x = a.data();
  const Limb* const y = b.data();
  const std::size_t x_count = a.count();
  const std::size_t y_count = b.count();
  Limb second_below = 0;
  Limb third_below = 0;
  Limb third = 0;
  Limb carry = 0;
  for (std::size_t place = first; place + 1 < x_count + y_count; ++place) {
    const std::size_t end = std::min(place + 1, x_count);
    Wide column = 0;
    for (std::size_t i = place < y_count ? 0 : place - y_count + 1; i < end; ++i) {
      column += Wide{x[i]} * y[place - i];
    }
    const Limb limb = Take_Limb_Of_Many(column);
    const Limb sum = limb + second_below + third_below + carry;
    carry = static_cast<Limb>(sum >= base) + static_cast<Limb>(sum >= 2 * base);
    out[place] = sum - carry * base;
    third_below = third;
    second_below = Take_Limb(column);
    third = static_cast<Limb>(column);
  }
  out[x_count + y_count - 1] = second_below + third_below + carry;
}

// The lowest column to begin with. What those below it add stays below a unit for each limb of the
// shorter factor in the limb above it: that limb guards those above, one of which holds the first
// digit that is dropped.
std::size_t First_Column(std::size_t count, std::size_t digits_kept) {
  const std::size_t needed = Count_For(digits_kept) + 4;
  return count > needed + 2 ? count - needed : 0;
}

}  // namespace

Number Product(const Number& a, const Number& b, std::size_t digits_kept) {
  if (a.is_zero() || b.is_zero()) return {};
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
