#include "native/generic/karatsuba.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/schoolbook_portable.h"

namespace quorvex::native {
namespace {

// Measured: below this many limbs the plain kernel is faster.
constexpr std::size_t threshold = 64;

// Adds `b` to the front of `a` and carries on to the end of `a`.
void Add_To(Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count) {
  Limb carry = 0;
  for (std::size_t i = 0; i < a_count && (i < b_count || carry != 0); ++i) {
    const Limb sum = a[i] + (i < b_count ? b[i] : 0) + carry;
    carry = sum >= limb_base ? 1 : 0;
    a[i] = sum - carry * limb_base;
  }
  Expects(carry == 0);
}

// The same with `b` taken off `a`.
void Subtract_From(Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count) {
  Limb borrow = 0;
  for (std::size_t i = 0; i < a_count && (i < b_count || borrow != 0); ++i) {
    const Limb less = (i < b_count ? b[i] : 0) + borrow;
    borrow = a[i] < less ? 1 : 0;
    a[i] = a[i] + borrow * limb_base - less;
  }
  Expects(borrow == 0);
}

bool Is_Less(const Limb* a, const Limb* b, std::size_t count) {
  while (count > 0 && a[count - 1] == b[count - 1]) --count;
  return count > 0 && a[count - 1] < b[count - 1];
}

// out = |low - high|, where high is `missing` (0 or 1) limbs shorter. True if low was the less.
bool Distance(Limb* out, const Limb* low, const Limb* high, std::size_t count,
              std::size_t missing) {
  const std::size_t both = count - missing;
  const bool negative = (missing == 0 || low[both] == 0) && Is_Less(low, high, both);
  std::copy(negative ? high : low, (negative ? high : low) + both, out);
  if (missing != 0) out[both] = negative ? 0 : low[both];
  Subtract_From(out, count, negative ? low : high, both);
  return negative;
}

}  // namespace

void Multiply_Karatsuba(Limb* out, const Limb* a, const Limb* b, std::size_t count, Limb* scratch) {
  if (count < threshold) {
    if (a == b) return Square_Schoolbook(out, a, count);
    return Multiply_Schoolbook(out, a, count, b, count);
  }
  const std::size_t half = (count + 1) / 2;
  const std::size_t missing = 2 * half - count;
  const std::size_t top = 2 * (half - missing);
  Limb* const rest = scratch + 2 * half + 1;

  // The differences stand in `out` until their product is formed.
  const bool a_negative = Distance(out, a, a + half, half, missing);
  bool b_negative = a_negative;
  const Limb* other = out;
  if (a != b) {
    b_negative = Distance(out + half, b, b + half, half, missing);
    other = out + half;
  }
  Multiply_Karatsuba(scratch, out, other, half, rest);
  scratch[2 * half] = 0;
  Multiply_Karatsuba(out, a, b, half, rest);
  Multiply_Karatsuba(out + 2 * half, a + half, b + half, half - missing, rest);

  // a0 b1 + a1 b0 = a0 b0 + a1 b1 - (a0 - a1)(b0 - b1), formed where the last product stands; if
  // that is to be taken off, its place and the sum's are exchanged first.
  Limb* const middle = rest;
  std::copy(out, out + 2 * half, middle);
  middle[2 * half] = 0;
  Add_To(middle, 2 * half + 1, out + 2 * half, top);
  if (a_negative == b_negative) {
    Subtract_From(middle, 2 * half + 1, scratch, 2 * half);
  } else {
    Add_To(middle, 2 * half + 1, scratch, 2 * half);
  }
  const std::size_t room = 2 * count - half;
  Add_To(out + half, room, middle, std::min(room, 2 * half + 1));
}

void Multiply_In_Pieces(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                        std::size_t b_count, Limb* scratch) {
  Expects(b_count > 0 && a_count >= b_count);
  std::fill(out, out + a_count + b_count, 0);
  Limb* const product = scratch;
  Limb* const rest = scratch + 2 * b_count;
  for (std::size_t at = 0; at < a_count; at += b_count) {
    const std::size_t piece = std::min(b_count, a_count - at);
    if (piece == b_count) {
      Multiply_Karatsuba(product, a + at, b, b_count, rest);
    } else if (piece < threshold) {
      Multiply_Schoolbook(product, a + at, piece, b, b_count);
    } else {
      Multiply_In_Pieces(product, b, b_count, a + at, piece, rest);
    }
    Add_To(out + at, a_count + b_count - at, product, piece + b_count);
  }
}

}  // namespace quorvex::native
