// Long operands by transforms of complex numbers in floating point, whose results are rounded.
//
// What the transforms lose is bounded by the sizes of the factors, which are measured: with e =
// 2^-53 and N complex points of a piece, of Euclidean lengths |x| and |y| before the transform,
// every coefficient of the product is off by less than
//
//   (10 log2 N + 6) e |x| |y|.
//
// A product of two complex numbers is off by sqrt(5) e of its size at most, even without fused
// sums; with a factor from the tables, itself off by 1.06 e, by 3.3 e. A sum is off by e. Each step
// multiplies and adds once for two parts, 4.3 e, once and twice for four, 5.3 e, and for eight as
// for two and four together, 9.6 e. A step for two alone occurs once at most, so a transform makes
// no more than (3.2 log2 N + 1.1) e.
//
// Forward that is in proportion to the Euclidean length, which each level makes sqrt(2) times
// longer. So the sizes of what the products of two transforms are off by have a sum of at most
// (6.4 log2 N + 4.5) e N |x| |y|, with what is lost in forming them. Backward a step loses in
// proportion to the sum of the sizes of all that it joins, which is at most N |x| |y| on each
// level, and the division by N is exact. The terms of higher order are far below what was rounded
// up.
#include <algorithm>
#include <bit>
#include <optional>

#include "native/generic/kernels.h"
#include "native/generic/scratch.h"
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
  const double steps = 10 * std::countr_zero(points) + 6;
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
  return Multiply_By_Primes(operands, out, kernels);
}

}  // namespace quorvex::native
