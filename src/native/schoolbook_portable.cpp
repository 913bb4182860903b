#include "native/schoolbook_portable.h"

#include <algorithm>

#include "native/digit_words.h"

namespace quorvex::native {
namespace {

// Division of 128 bits by the base without a division instruction: N. Moeller, T. Granlund,
// "Improved division by invariant integers", IEEE Trans. Computers 60 (2011), algorithm 4. The
// divisor is shifted until its high bit is set.
constexpr unsigned shift = 4;
constexpr std::uint64_t divisor = limb_base << shift;
constexpr std::uint64_t reciprocal =
    static_cast<std::uint64_t>(~Wide{0} / divisor - (Wide{1} << 64U));

// Takes one limb off a column; what is left is the carry into the next.
Limb Take_Limb(Wide& column) {
  const auto high = static_cast<std::uint64_t>(column >> 64U);
  const std::uint64_t above = high / limb_base;
  const Wide shifted =
      ((Wide{high - above * limb_base} << 64U) | static_cast<std::uint64_t>(column)) << shift;
  const auto top = static_cast<std::uint64_t>(shifted >> 64U);
  const auto low = static_cast<std::uint64_t>(shifted);
  const Wide guess = Wide{reciprocal} * top + (Wide{top + 1} << 64U) + low;
  auto quotient = static_cast<std::uint64_t>(guess >> 64U);
  std::uint64_t rest = low - quotient * divisor;
  if (rest > static_cast<std::uint64_t>(guess)) {
    --quotient;
    rest += divisor;
  }
  if (rest >= divisor) {
    ++quotient;
    rest -= divisor;
  }
  column = (Wide{above} << 64U) + quotient;
  return rest >> shift;
}

// The sum of a[first + i] * b[-i] for i below count, `b` pointing at the factor of a[first].
Wide Column(const Limb* a, const Limb* b, std::size_t count) {
  Wide sum = 0;
  for (std::size_t i = 0; i < count; ++i) sum += Wide{a[i]} * *(b - i);
  return sum;
}

}  // namespace

void Multiply_Schoolbook(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                         std::size_t b_count) {
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
