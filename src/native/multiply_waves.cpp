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

#include "native/generic/kernels.h"
#include "native/generic/pieces.h"
#include "native/generic/scratch.h"
#include "native/stair.h"

namespace quorvex::native {
namespace {

// Where one operand is longer than so many times the other, it is cut into pieces of about seven
// times the other's length, which share its transform.
constexpr std::size_t most_unbalanced = 12;
constexpr std::size_t piece_lengths = 7;

std::size_t Coefficients_For(std::size_t a_size, std::size_t b_size, const Grain& grain) {
  return Grains_For(a_size, grain) + Grains_For(b_size, grain) - 1;
}

// The greatest |x|^2 |y|^2 that leaves coefficients off by less than a half, with room for the
// rounding of the squares' sums. Below 2^45 coefficients also are what carrying takes.
double Most_Squares(std::size_t points) {
  const double steps = 10 * std::countr_zero(points) + 6;
  const double most = std::min(0.49 * 0x1p53 / steps, 0x1p45);
  return most * most;
}

// Whether points would be small enough if digits were as likely as each other.
bool Is_Worth_Trying(std::size_t a_size, std::size_t b_size, const Grain& grain) {
  const auto points = [&grain](std::size_t digits) {
    return static_cast<double>(Grains_For(digits, grain));
  };
  const double square = static_cast<double>(grain.base) * static_cast<double>(grain.base) / 12;
  const std::size_t length = std::bit_ceil(Coefficients_For(a_size, b_size, grain)) / 2;
  return points(a_size) * points(b_size) * square * square < Most_Squares(length);
}

enum class Outcome {
  done,
  impossible,  ///< a character is no digit, or there is no memory
  uncertain    ///< points are too large for the result to be certain
};

// Everything that products of one length need but the operands: with a second one that several may
// share, or of one by itself.
class Wave_Product {
 public:
  Wave_Product(std::size_t a_size, std::size_t b_size, bool is_square, const Kernels& kernels,
               const Grain& grain)
      : is_square_(is_square),
        kernels_(kernels),
        grain_(grain),
        length_(Wave_Length_For(Coefficients_For(a_size, b_size, grain),
                                kernels.lanes * kernels.lanes)),
        pieces_(Pieces_Of(length_)),
        memory_((is_square ? 2 : 3) * length_.coefficients()) {}

  bool is_ready() {
    if (memory_.get() == nullptr) return false;
    for (std::size_t k = 0; k < pieces_.count; ++k)
      if (!Find_Roots(kernels_.lanes, pieces_.piece[k].size, roots_[k])) return false;
    return true;
  }

  bool set_second(std::string_view digits) {
    if (!read(digits, second(), second_squares_)) return false;
    kernels_.split(second(), length_, roots_);
    return true;
  }

  /// The product of a first operand, as so many groups.
  Outcome multiply(std::string_view digits, std::size_t groups) {
    if (!read(digits, first(), first_squares_)) return Outcome::impossible;
    if (!is_certain()) return Outcome::uncertain;
    kernels_.multiply_waves(first(), is_square_ ? nullptr : second(), length_, roots_);
    kernels_.carry_wave(first(), length_, grain_, groups, row());
    return Outcome::done;
  }
  const double* groups() const { return row(); }

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
    const double* const second = is_square_ ? first_squares_ : second_squares_;
    for (std::size_t k = 0; k < pieces_.count; ++k)
      if (first_squares_[k] * second[k] > Most_Squares(pieces_.piece[k].size)) return false;
    return true;
  }

  bool is_square_;
  const Kernels& kernels_;
  const Grain& grain_;
  Wave_Length length_;
  Wave_Pieces pieces_;
  Scratch<double> memory_;
  Wave_Roots roots_[most_wave_pieces] = {};
  double first_squares_[most_wave_pieces] = {};
  double second_squares_[most_wave_pieces] = {};
};

bool Is_Cut(std::size_t a_size, std::size_t b_size) {
  return a_size / most_unbalanced > b_size;
}

// The length of pieces, in whole groups and alike.
std::size_t Piece_Size(std::size_t a_size, std::size_t b_size, const Grain& grain) {
  const std::size_t pieces = (a_size + piece_lengths * b_size / 2) / (piece_lengths * b_size);
  return (Groups_For(a_size, grain) + pieces - 1) / pieces * grain.digits;
}

Outcome Multiply_Whole(const Operands& operands, char* out, const Kernels& kernels,
                       const Grain& grain, std::size_t& written) {
  const auto& [a, b, is_square] = operands;
  Wave_Product product(a.size(), b.size(), is_square, kernels, grain);
  if (!product.is_ready()) return Outcome::impossible;
  if (!is_square && !product.set_second(b)) return Outcome::impossible;
  const std::size_t groups = Groups_For(a.size(), grain) + Groups_For(b.size(), grain) + 1;
  const Outcome outcome = product.multiply(a, groups);
  if (outcome != Outcome::done) return outcome;
  written = kernels.write_points(product.groups(), groups, grain.digits, out);
  return Outcome::done;
}

Outcome Multiply_Cut(const Operands& operands, char* out, const Kernels& kernels,
                     const Grain& grain, std::size_t& written) {
  const auto& [a, b, is_square] = operands;
  const std::size_t size = Piece_Size(a.size(), b.size(), grain);
  const std::size_t b_groups = Groups_For(b.size(), grain);
  const std::size_t groups = Groups_For(a.size(), grain) + b_groups;
  Wave_Product product(size, b.size(), is_square, kernels, grain);
  // Whole registers are written.
  const std::size_t room = groups + kernels.lanes;
  const Scratch<double> all(room);
  if (!product.is_ready() || all.get() == nullptr) return Outcome::impossible;
  if (!product.set_second(b)) return Outcome::impossible;
  std::fill(all.get() + groups, all.get() + room, 0.0);
  const auto base = static_cast<double>(grain.base) * static_cast<double>(grain.base);
  std::string_view left = a;
  for (std::size_t at = 0; !left.empty(); at += size / grain.digits) {
    const std::size_t digits = std::min(left.size(), size);
    const std::size_t count = Groups_For(digits, grain) + b_groups;
    const Outcome outcome = product.multiply(left.substr(left.size() - digits), count);
    if (outcome != Outcome::done) return outcome;
    Add_Points(all.get() + at, product.groups(), count, at == 0 ? 0 : b_groups, base);
    left.remove_suffix(digits);
  }
  written = kernels.write_points(all.get(), groups, grain.digits, out);
  return Outcome::done;
}

}  // namespace

bool Are_Wave_Lengths(std::size_t a_size, std::size_t b_size) noexcept {
  const std::size_t size = Is_Cut(a_size, b_size) ? Piece_Size(a_size, b_size, fine_grain) : a_size;
  return Grains_For(size, fine_grain) + Grains_For(b_size, fine_grain) <= 2 * most_wave_points;
}

std::size_t Multiply_By_Waves(const Operands& operands, char* out,
                              const Kernels& kernels) noexcept {
  const std::size_t b_size = operands.b.size();
  const bool is_cut = Is_Cut(operands.a.size(), b_size);
  for (const Grain* grain : {&coarse_grain, &fine_grain}) {
    const std::size_t size =
        is_cut ? Piece_Size(operands.a.size(), b_size, *grain) : operands.a.size();
    if (!Is_Worth_Trying(size, b_size, *grain)) continue;
    std::size_t written = 0;
    const auto multiply = is_cut ? Multiply_Cut : Multiply_Whole;
    const Outcome outcome = multiply(operands, out, kernels, *grain, written);
    if (outcome == Outcome::done) return written;
    if (outcome == Outcome::impossible) return 0;
  }
  return Multiply_By_Primes(operands, out, kernels);
}

}  // namespace quorvex::native
