// Columns of products are added and taken off before anything is carried. All of that may run over:
// it is calculated modulo 2^128, and the columns of the whole product are below that.
#include "native/generic/karatsuba.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/columns.h"
#include "native/generic/schoolbook_portable.h"

namespace quorvex::native {
namespace {

// For a square the plain kernel has half the products to form, and is faster for longer.
constexpr std::size_t square_threshold = 60;

// Each split doubles the limbs of sums, which must stay below 2^64.
constexpr unsigned most_splits = 3;
static_assert((limb_base << most_splits) >> most_splits == limb_base);
static_assert(karatsuba_ceiling <= std::size_t{schoolbook_ceiling} << most_splits);

// What splits of `count` limbs write to on their way: half as many at each, rounded up.
constexpr std::size_t Room_For(std::size_t count) {
  std::size_t room = 0;
  for (unsigned split = 0; split < most_splits; ++split) room += count = (count + 1) / 2;
  return 2 * room;
}

struct Room {
  Wide* columns;
  Limb* sums;
};

// The limbs of both halves, the upper of which has one at least and may have one less.
void Add_Halves(Limb* out, const Limb* a, std::size_t half, std::size_t upper) {
  std::size_t i = 0;
  do {
    out[i] = a[i] + a[half + i];
  } while (++i < upper);
  if (upper < half) out[upper] = a[upper];
}

// A routine for each split: compilers make less of one that calls itself.
template <unsigned splits>
void Multiply_Columns(Wide* out, const Limb* a, const Limb* b, std::size_t count, const Room& room);

template <>
void Multiply_Columns<0>(Wide* out, const Limb* a, const Limb* b, std::size_t count,
                         const Room& /*room*/) {
  Multiply_To_Columns(out, a, b, count);
}

template <unsigned splits>
void Multiply_Columns(Wide* out, const Limb* a, const Limb* b, std::size_t count,
                      const Room& room) {
  if (count < (a == b ? square_threshold : karatsuba_from))
    return Multiply_To_Columns(out, a, b, count);
  const std::size_t half = (count + 1) / 2;
  const std::size_t upper = count - half;
  Wide* const middle = room.columns;
  Wide* const top = out + 2 * half;
  Limb* const a_sums = room.sums;
  Limb* const b_sums = a == b ? a_sums : a_sums + half;
  const Room rest = {room.columns + 2 * half, room.sums + 2 * half};
  Add_Halves(a_sums, a, half, upper);
  if (a != b) Add_Halves(b_sums, b, half, upper);
  Multiply_Columns<splits - 1>(middle, a_sums, b_sums, half, rest);
  Multiply_Columns<splits - 1>(out, a, b, half, rest);
  Multiply_Columns<splits - 1>(top, a + half, b + half, upper, rest);

  // a0 b1 + a1 b0 = (a0 + a1)(b0 + b1) - a0 b0 - a1 b1.
  for (std::size_t k = 0; k < 2 * upper; ++k) middle[k] -= out[k] + top[k];
  for (std::size_t k = 2 * upper; k < 2 * half; ++k) middle[k] -= out[k];
  for (std::size_t k = 0; k < 2 * half; ++k) out[half + k] += middle[k];
}

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

}  // namespace

void Multiply_Karatsuba(Limb* out, const Limb* a, const Limb* b, std::size_t count) {
  if (a == b && count < square_threshold) return Square_Schoolbook(out, a, count);
  if (count < karatsuba_from) return Multiply_Schoolbook(out, a, count, b, count);
  Expects(count <= karatsuba_ceiling);
  Wide columns[2 * karatsuba_ceiling];
  Wide middles[Room_For(karatsuba_ceiling)];
  Limb sums[Room_For(karatsuba_ceiling)];
  Multiply_Columns<most_splits>(columns, a, b, count, {middles, sums});
  Column_Sum sum;
  for (std::size_t k = 0; k < 2 * count; ++k) out[k] = sum.next(columns[k]);
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
      Multiply_Karatsuba(product, a + at, b, b_count);
    } else if (piece < karatsuba_from) {
      Multiply_Schoolbook(product, a + at, piece, b, b_count);
    } else {
      Multiply_In_Pieces(product, b, b_count, a + at, piece, rest);
    }
    Add_To(out + at, a_count + b_count - at, product, piece + b_count);
  }
}

}  // namespace quorvex::native
