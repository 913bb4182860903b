#include "native/generic/schoolbook_portable.h"

#include <algorithm>

#include "expects.h"
#include "native/generic/columns.h"

namespace quorvex::native {
namespace {

// What columns of a block meet beyond the ends of a factor.
constexpr std::size_t zeros = columns_in_block - 1;

class Padded {
 public:
  Padded(const Limb* limbs, std::size_t count) {
    std::fill_n(limbs_, zeros, 0);
    std::copy_n(limbs, count, limbs_ + zeros);
    std::fill_n(limbs_ + zeros + count, zeros, 0);
  }
  const Limb* limbs() const { return limbs_ + zeros; }

 private:
  Limb limbs_[schoolbook_ceiling + 2 * zeros];
};

template <typename Put>
void Put_Product(const Limb* a, std::size_t a_count, const Limb* b, std::size_t b_count,
                 const Put& put) {
  Expects(b_count > 0 && b_count <= a_count && b_count <= schoolbook_ceiling);
  const Padded padded(b, b_count);
  Put_Blocks(
      a_count + b_count,
      [&](std::size_t k, Wide(&sums)[columns_in_block]) {
        const std::size_t from = k < b_count ? 0 : k - b_count + 1;
        const std::size_t to = std::min(k + columns_in_block, a_count);
        Add_Block(sums, a + from, padded.limbs() + k - from, to - from);
      },
      put);
}

// Each product of two different limbs counts twice, so those of which `a` has the lower are enough.
template <typename Put>
void Put_Square(const Limb* a, std::size_t count, const Put& put) {
  Expects(count > 0 && count <= schoolbook_ceiling);
  const Padded padded(a, count);
  Put_Blocks(
      2 * count,
      [&](std::size_t k, Wide(&sums)[columns_in_block]) {
        const std::size_t from = k < count ? 0 : k - count + 1;
        const Limb* const middle = padded.limbs() + k / 2;
        Add_Block(sums, a + from, padded.limbs() + k - from, k / 2 - from);
        sums[1] += Wide{middle[0]} * middle[1];
        sums[2] += Wide{middle[0]} * middle[2];
        sums[3] += Wide{middle[0]} * middle[3] + Wide{middle[1]} * middle[2];
        for (Wide& sum : sums) sum *= 2;
        sums[0] += Wide{middle[0]} * middle[0];
        sums[2] += Wide{middle[1]} * middle[1];
      },
      put);
}

}  // namespace

void Multiply_Schoolbook(Limb* out, const Limb* a, std::size_t a_count, const Limb* b,
                         std::size_t b_count) {
  if (a_count < b_count) return Multiply_Schoolbook(out, b, b_count, a, a_count);
  Column_Sum columns;
  Put_Product(a, a_count, b, b_count,
              [&](std::size_t k, Wide column) { out[k] = columns.next(column); });
}

void Square_Schoolbook(Limb* out, const Limb* a, std::size_t count) {
  Column_Sum columns;
  Put_Square(a, count, [&](std::size_t k, Wide column) { out[k] = columns.next(column); });
}

void Multiply_To_Columns(Wide* out, const Limb* a, const Limb* b, std::size_t count) {
  const auto put = [out](std::size_t k, Wide column) { out[k] = column; };
  if (a == b) return Put_Square(a, count, put);
  Put_Product(a, count, b, count, put);
}

}  // namespace quorvex::native
