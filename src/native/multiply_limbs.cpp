// Short and middling operands by the portable kernels.
#include <algorithm>

#include "expects.h"
#include "native/generic/karatsuba.h"
#include "native/generic/limb_division.h"
#include "native/generic/limbs.h"
#include "native/generic/schoolbook_portable.h"
#include "native/generic/scratch.h"
#include "native/stair.h"

namespace quorvex::native {
namespace {

// Operands of up to this many limbs are worked on without asking for memory.
constexpr std::size_t few = 64;

// Whether the shorter operand has as many limbs, or so many and hardly fewer that it pays to fill
// it up with zeros.
bool Are_Alike(std::size_t a_count, std::size_t b_count) {
  return b_count >= a_count - (a_count < karatsuba_from ? 0 : a_count / 8);
}

std::size_t Multiply_Few(const Operands& operands, char* out) {
  const std::size_t a_count = Limbs_For(operands.a.size());
  const std::size_t b_count = Limbs_For(operands.b.size());
  Limb limbs[4 * few];
  Limb* const a = limbs;
  Limb* const b = operands.is_square ? a : limbs + few;
  Limb* const product = limbs + 2 * few;
  if (!Read_Limbs(operands.a.data(), operands.a.size(), a)) return 0;
  if (b != a && !Read_Limbs(operands.b.data(), operands.b.size(), b)) return 0;
  if (Are_Alike(a_count, b_count)) {
    std::fill(b + b_count, b + a_count, 0);
    Multiply_Karatsuba(product, a, b, a_count);
  } else {
    Multiply_Schoolbook(product, a, a_count, b, b_count);
  }
  return Write_Limbs(product, a_count + b_count, out);
}

}  // namespace

std::size_t Multiply_Words(const Operands& operands, char* out) noexcept {
  Expects(operands.a.size() <= word_digits);
  Limb a = 0;
  Limb b = 0;
  if (!Read_Limbs(operands.a.data(), operands.a.size(), &a)) return 0;
  if (!Read_Limbs(operands.b.data(), operands.b.size(), &b)) return 0;
  Wide product = Wide{a} * b;
  const Limb low = Take_Limb(product);
  const Limb limbs[2] = {low, static_cast<Limb>(product)};
  return Write_Limbs(limbs, 2, out);
}

std::size_t Multiply_Limbs(const Operands& operands, char* out) noexcept {
  const std::size_t a_count = Limbs_For(operands.a.size());
  const std::size_t b_count = Limbs_For(operands.b.size());
  if (a_count <= few) return Multiply_Few(operands, out);

  const std::size_t room = Are_Alike(a_count, b_count) ? a_count : b_count;
  const Scratch<Limb> memory(2 * (a_count + room) + Pieces_Scratch(b_count));
  Limb* const a = memory.get();
  if (a == nullptr) return 0;
  Limb* const b = operands.is_square ? a : a + a_count;
  Limb* const product = a + a_count + room;
  Limb* const rest = product + a_count + room;
  if (!Read_Limbs(operands.a.data(), operands.a.size(), a)) return 0;
  if (b != a && !Read_Limbs(operands.b.data(), operands.b.size(), b)) return 0;
  if (room == a_count) {
    std::fill(b + b_count, b + a_count, 0);
    Multiply_Karatsuba(product, a, b, a_count);
  } else {
    Multiply_In_Pieces(product, a, a_count, b, b_count, rest);
  }
  return Write_Limbs(product, a_count + b_count, out);
}

}  // namespace quorvex::native
