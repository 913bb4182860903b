// Sums and differences of numbers in limbs.
#include <algorithm>
#include <utility>

#include "arith/limbs/limb_number.h"

namespace quorvex::limbs {
namespace {

// The limbs of an operand.
struct View {
  const Limb* limbs;
  std::int64_t low;
  std::size_t count;

  std::int64_t top() const { return low + static_cast<std::int64_t>(count); }
};

View View_Of(const Number& number) {
  return {number.data(), number.low, number.count()};
}

void Add_Limbs(Limb* out, const View& b) {
  Limb carry = 0;
  for (std::size_t place = 0; place < b.count; ++place) {
    const Limb sum = out[place] + b.limbs[place] + carry;
    carry = static_cast<Limb>(sum >= base);
    out[place] = sum - carry * base;
  }
  if (carry == 0) return;
  Limb* above = out + b.count;
  while (++*above == base) *above++ = 0;
}

// `out` stands for no less than b.
void Subtract_Limbs(Limb* out, const View& b) {
  Limb borrow = 0;
  for (std::size_t place = 0; place < b.count; ++place) {
    const Limb less = b.limbs[place] + borrow;
    borrow = static_cast<Limb>(out[place] < less);
    out[place] += borrow * base - less;
  }
  if (borrow == 0) return;
  Limb* above = out + b.count;
  while (*above == 0) *above++ = base - 1;
  --*above;
}

// An operand that ends far below the digits that are kept and the other operand can only make that
// one a trifle more or less: any trifle does, the nearest one with the least zeros between.
constexpr Limb trifle = 1;

void Shorten(View& smaller, const View& larger, std::size_t digits_kept) {
  const auto enough = static_cast<std::int64_t>(Count_For(digits_kept)) + 2;
  const std::int64_t above = std::min(larger.low, larger.top() - enough);
  if (smaller.top() <= above) smaller = {&trifle, above - 1, 1};
}

void Round_Copy(const Number& number, bool negative, std::size_t digits_kept, Number& result) {
  Scratch scratch(number.count() + 1);
  Copy(number.data(), number.count(), scratch.data());
  Raw_Number raw{scratch.data(), number.count(), number.low, negative};
  Round(raw, digits_kept, result);
}

}  // namespace

void Add(const Number& a, const Number& b, bool b_is_negative, std::size_t digits_kept,
         Number& result) {
  if (b.is_zero()) return Round_Copy(a, a.negative, digits_kept, result);
  if (a.is_zero()) return Round_Copy(b, b_is_negative, digits_kept, result);
  View larger = View_Of(a);
  View smaller = View_Of(b);
  bool negative = a.negative;
  if (std::is_lt(Compare_Magnitudes(a, b))) {
    std::swap(larger, smaller);
    negative = b_is_negative;
  }
  Shorten(smaller, larger, digits_kept);

  const std::int64_t low = std::min(larger.low, smaller.low);
  const auto count = static_cast<std::size_t>(larger.top() - low) + 1;
  Scratch scratch(count + 1);
  Limb* const out = scratch.data();
  const std::ptrdiff_t zeros = larger.low - low;
  std::fill_n(out, zeros, 0);
  Copy(larger.limbs, larger.count, out + zeros);
  out[count - 1] = 0;
  (a.negative == b_is_negative ? Add_Limbs : Subtract_Limbs)(out + (smaller.low - low), smaller);
  Raw_Number raw{out, count, low, negative};
  Round(raw, digits_kept, result);
}

}  // namespace quorvex::limbs
