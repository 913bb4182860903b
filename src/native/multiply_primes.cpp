// The longest operands by transforms over two primes.
#include <algorithm>

#include "native/generic/kernels.h"
#include "native/generic/pieces.h"
#include "native/generic/points.h"
#include "native/generic/scratch.h"
#include "native/stair.h"

namespace quorvex::native {
namespace {

constexpr std::size_t directions = 2;

// Where one operand is longer than so many times the other, it is cut.
constexpr std::size_t most_unbalanced = 16;

// Everything that a product of one length needs but the operands.
class Convolution {
 public:
  Convolution(const Kernels& kernels, const Cut& cut, std::size_t points)
      : kernels_(kernels),
        cut_(cut),
        length_(Length_For(points, kernels.lanes * kernels.lanes)),
        memory_(4 * length_.points()) {
    for (std::size_t prime = 0; prime < prime_count; ++prime) {
      for (std::size_t way = 0; way < directions; ++way)
        tables_[prime][way] = Find_Twiddles(prime, kernels.lanes, way == 1, length_.points());
    }
  }

  bool has_memory() const {
    if (memory_.get() == nullptr) return false;
    for (const auto& ways : tables_) {
      for (const Twiddles* table : ways)
        if (table == nullptr) return false;
    }
    return true;
  }

  // The second operand, which several products may share.
  bool set_second(std::string_view digits) {
    if (!read(digits, second(0))) return false;
    std::copy_n(second(0), length_.points(), second(1));
    for (std::size_t prime = 0; prime < prime_count; ++prime)
      kernels_.forward(second(prime), length_, *tables_[prime][0]);
    return true;
  }

  // The points of a product with the second operand, `points` in number; null if a character is no
  // digit.
  double* multiply(std::string_view digits, std::size_t points) {
    if (!read(digits, first(0))) return nullptr;
    std::copy_n(first(0), length_.points(), first(1));
    for (std::size_t prime = 0; prime < prime_count; ++prime) {
      kernels_.forward(first(prime), length_, *tables_[prime][0]);
      finish(prime, second(prime));
    }
    return recombine(points);
  }

  double* square(std::string_view digits, std::size_t points) {
    if (!read(digits, first(0))) return nullptr;
    std::copy_n(first(0), length_.points(), first(1));
    for (std::size_t prime = 0; prime < prime_count; ++prime) {
      kernels_.forward(first(prime), length_, *tables_[prime][0]);
      finish(prime, first(prime));
    }
    return recombine(points);
  }

 private:
  double* first(std::size_t prime) const { return memory_.get() + prime * length_.points(); }
  double* second(std::size_t prime) const { return first(prime + prime_count); }

  bool read(std::string_view digits, double* points) const {
    const std::size_t count = Points_For(digits.size(), cut_);
    std::fill(points + count, points + length_.points(), 0.0);
    return kernels_.read_points(digits.data(), digits.size(), cut_, points);
  }

  void finish(std::size_t prime, const double* other) const {
    kernels_.multiply_points(first(prime), other, length_, *tables_[prime][0]);
    kernels_.inverse(first(prime), length_, *tables_[prime][1], *tables_[prime][0]);
  }

  double* recombine(std::size_t points) const {
    kernels_.recombine(first(0), first(1), points, cut_);
    return first(0);
  }

  const Kernels& kernels_;
  const Cut& cut_;
  Length length_;
  Scratch<double> memory_;
  const Twiddles* tables_[prime_count][directions] = {};
};

const Cut& Cut_For(std::size_t digits) {
  return Points_For(digits, cuts[0]) <= cuts[0].most_points ? cuts[0] : cuts[1];
}

std::size_t Multiply_Cut(const Operands& operands, char* out, const Kernels& kernels) {
  const Cut& cut = Cut_For(operands.b.size());
  const std::size_t b_points = Points_For(operands.b.size(), cut);
  const std::size_t a_points = Points_For(operands.a.size(), cut);
  const std::size_t piece = 7 * b_points;
  Convolution convolution(kernels, cut, piece + b_points);
  const Scratch<double> product(a_points + b_points);
  if (!convolution.has_memory() || product.get() == nullptr) return 0;
  if (!convolution.set_second(operands.b)) return 0;

  std::string_view left = operands.a;
  for (std::size_t at = 0; !left.empty(); at += piece) {
    const std::size_t digits = std::min(left.size(), piece * cut.digits);
    const std::size_t points = Points_For(digits, cut) + b_points;
    const double* part = convolution.multiply(left.substr(left.size() - digits), points);
    if (part == nullptr) return 0;
    Add_Points(product.get() + at, part, points, at == 0 ? 0 : b_points,
               static_cast<double>(cut.base));
    left.remove_suffix(digits);
  }
  return kernels.write_points(product.get(), a_points + b_points, cut.digits, out);
}

}  // namespace

std::size_t Multiply_By_Primes(const Operands& operands, char* out,
                               const Kernels& kernels) noexcept {
  if (operands.a.size() / most_unbalanced > operands.b.size())
    return Multiply_Cut(operands, out, kernels);
  const Cut& cut = Cut_For(operands.b.size());
  const std::size_t points =
      Points_For(operands.a.size(), cut) + Points_For(operands.b.size(), cut);
  Convolution convolution(kernels, cut, points);
  if (!convolution.has_memory()) return 0;
  double* product = nullptr;
  if (operands.is_square) {
    product = convolution.square(operands.a, points);
  } else if (convolution.set_second(operands.b)) {
    product = convolution.multiply(operands.a, points);
  }
  return product == nullptr ? 0 : kernels.write_points(product, points, cut.digits, out);
}

}  // namespace quorvex::native
