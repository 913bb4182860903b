#include "native/generic/schoolbook_portable.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/limb_division.h"

namespace quorvex::native {
namespace {

// The sum of a[first + i] * b[-i] for i below count, `b` pointing at the factor of a[first].
Wide Column(const Limb* a, const Limb* b, std::size_t count) {
  Wide sum = 0;
  for (std::size_t i = 0; i < count; ++i) sum += Wide{a[i]} * *(b - i);
  return sum;
}

}  // namespace

void Multiply_Schoolbook(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                         std::size_t b_count) {
  Expects(std::min(a_count, b_count) > 0 && std::min(a_count, b_count) <= schoolbook_ceiling);
  Wide column = 0;
  for (std::size_t k = 0; k + 1 < a_count + b_count; ++k) {
    const std::size_t from = k < b_count ? 0 : k - b_count + 1;
    const std::size_t to = std::min(k + 1, a_count);
    column += Column(a + from, b + (k - from), to - from);
    out[k] = Take_Limb(column);
  }
  out[a_count + b_count - 1] = static_cast<Limb>(column);
}

void Square_Schoolbook(Limb* out, const Limb* a, std::size_t count) {
  Expects(count > 0 && count <= schoolbook_ceiling);
  Wide carry = 0;
  for (std::size_t k = 0; k + 1 < 2 * count; ++k) {
    const std::size_t from = k < count ? 0 : k - count + 1;
    Wide column = 2 * Column(a + from, a + (k - from), (k + 1) / 2 - from);
    if (k % 2 == 0) column += Wide{a[k / 2]} * a[k / 2];
    carry += column;
    out[k] = Take_Limb(carry);
  }
  out[2 * count - 1] = static_cast<Limb>(carry);
}

}  // namespace quorvex::native
