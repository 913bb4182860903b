// Long operands by transforms of complex numbers in floating point, whose results are rounded.
//
// What the transforms lose is bounded by the sizes of the factors, which are measured: with e =
// 2^-53 and N complex points of a piece, of Euclidean lengths |x| and |y| before the transform,
// every coefficient of the product is off by less than
//
//   (8 log2 N + 18) e |x| |y|.
//
// For a product of complex numbers is off by sqrt(5) e of its size even without fused sums, by
// 3.3 e with a factor from the tables, which is off by 1.06 e; a sum is by e. A step that forms
// four parts at once multiplies and adds twice, 5.3 e in two levels, a step that forms two 4.3 e in
// one, of which there are three at most: 2.65 log2 N + 5 times e in all. Forward this is in
// proportion to the Euclidean length, which each level makes sqrt(2) times longer. The products of
// two transforms are then off, in sum, by (5.3 log2 N + 12.3) e N |x| |y|, with what their own
// forming loses. Backward a step loses so much of the sum of the sizes of what it joins, which is
// at most N |x| |y| over all levels, before the division by N.
#include <algorithm>
#include <bit>
#include <optional>

#include "native/kernels.h"
#include "native/scratch.h"
#include "native/stair.h"

namespace quorvex::native {
namespace {

// Longer products are cut by the other transform.
constexpr std::size_t most_unbalanced = 16;

std::size_t Coefficients_For(const Operands& operands, const Grain& grain) {
  return Grains_For(operands.a.size(), grain) + Grains_For(operands.b.size(), grain) - 1;
}

// The greatest |x|^2 |y|^2 that leaves coefficients off by less than a half, with room for the
// rounding of the squares' sums. Below 2^45 coefficients also are what carrying takes.
double Most_Squares(std::size_t points) {
  const double steps = 8 * std::countr_zero(points) + 18;
  const double most = std::min(0.49 * 0x1p53 / steps, 0x1p45);
  return most * most;
}

// Whether points would be small enough if digits were as likely as each other.
bool Is_Worth_Trying(const Operands& operands, const Grain& grain) {
  const auto points = [&grain](std::string_view text) {
    return static_cast<double>(Grains_For(text.size(), grain));
  };
  const double square = static_cast<double>(grain.base) * static_cast<double>(grain.base) / 12;
  const std::size_t length = std::bit_ceil(Coefficients_For(operands, grain)) / 2;
  return points(operands.a) * points(operands.b) * square * square < Most_Squares(length);
}

class Wave_Product {
 public:
  Wave_Product(const Operands& operands, const Kernels& kernels, const Grain& grain)
      : operands_(operands),
        kernels_(kernels),
        grain_(grain),
        length_(Wave_Length_For(Coefficients_For(operands, grain), kernels.lanes * kernels.lanes)),
        pieces_(Pieces_Of(length_)),
        memory_((operands.is_square ? 2 : 3) * length_.coefficients()) {}

  bool is_ready() {
    if (memory_.get() == nullptr) return false;
    for (std::size_t k = 0; k < pieces_.count; ++k)
      if (!Find_Roots(kernels_.lanes, pieces_.piece[k].size, roots_[k])) return false;
    return true;
  }

  /// Nothing if the points are too large for the result to be certain.
  std::optional<std::size_t> write(char* out) {
    if (!read(operands_.a, first(), first_squares_)) return 0;
    if (!operands_.is_square && !read(operands_.b, second(), second_squares_)) return 0;
    if (!is_certain()) return std::nullopt;
    if (!operands_.is_square) kernels_.split(second(), length_, roots_);
    kernels_.multiply_waves(first(), operands_.is_square ? nullptr : second(), length_, roots_);
    const std::size_t groups =
        Groups_For(operands_.a.size(), grain_) + Groups_For(operands_.b.size(), grain_) + 1;
    kernels_.carry_wave(first(), length_, grain_, groups, row());
    return kernels_.write_points(row(), groups, grain_.digits, out);
  }

 private:
  double* row() const { return memory_.get(); }
  double* first() const { return row() + length_.coefficients(); }
  double* second() const { return first() + length_.coefficients(); }

  bool read(std::string_view digits, double* x, double* squares) const {
    if (!kernels_.read_grains(digits.data(), digits.size(), grain_, row())) return false;
    const std::size_t count = (Grains_For(digits.size(), grain_) + 15) / 16 * 16;
    kernels_.fold(row(), count, length_, roots_, x, squares);
    return true;
  }

  bool is_certain() const {
    const double* const second = operands_.is_square ? first_squares_ : second_squares_;
    for (std::size_t k = 0; k < pieces_.count; ++k)
      if (first_squares_[k] * second[k] > Most_Squares(pieces_.piece[k].size)) return false;
    return true;
  }

  const Operands& operands_;
  const Kernels& kernels_;
  const Grain& grain_;
  Wave_Length length_;
  Wave_Pieces pieces_;
  Scratch<double> memory_;
  Wave_Roots roots_[most_wave_pieces] = {};
  double first_squares_[most_wave_pieces] = {};
  double second_squares_[most_wave_pieces] = {};
};

}  // namespace

bool Are_Wave_Lengths(std::size_t a_size, std::size_t b_size) noexcept {
  return a_size / most_unbalanced <= b_size &&
         Grains_For(a_size, fine_grain) + Grains_For(b_size, fine_grain) <= 2 * most_wave_points;
}

std::size_t Multiply_By_Waves(const Operands& operands, char* out,
                              const Kernels& kernels) noexcept {
  for (const Grain* grain : {&coarse_grain, &fine_grain}) {
    if (!Is_Worth_Trying(operands, *grain)) continue;
    Wave_Product product(operands, kernels, *grain);
    if (!product.is_ready()) return 0;
    if (const auto count = product.write(out)) return *count;
  }
  return Multiply_Long(operands, out, kernels);
}

}  // namespace quorvex::native
