#include "native/generic/twiddles.h"

#include <algorithm>
#include <bit>
#include <mutex>

#include "native/generic/field.h"
#include "native/generic/scratch.h"

namespace quorvex::native {
namespace {

class Table {
 public:
  Table(std::size_t prime, std::size_t lanes, bool inverse)
      : p_(primes[prime].value), lanes_(lanes) {
    std::uint64_t root = primes[prime].root;
    if (inverse) root = Inverse_Mod(root, p_);
    twiddles_.prime = static_cast<double>(p_);
    twiddles_.reciprocal = 1 / static_cast<double>(p_);
    for (std::size_t t = 31; t-- > 0; root = Multiply_Mod(root, root, p_)) {
      roots_[t] = root;
      twiddles_.roots[t] = Balanced(root, p_);
    }
  }

  // Fills what a transform of so many points reads.
  const Twiddles* fill(std::size_t points) {
    if (singles_.get() == nullptr) singles_ = Scratch<double>(tabled_singles);
    if (vectors_.get() == nullptr) vectors_ = Scratch<double>(vector_count());
    if (singles_.get() == nullptr || vectors_.get() == nullptr) return nullptr;
    twiddles_.singles = singles_.get();
    twiddles_.vectors = vectors_.get();
    const std::size_t singles = std::min(tabled_singles, std::max<std::size_t>(points / 2, 8));
    fill_singles(singles);
    fill_vectors(std::min(tabled_points, points) / (lanes_ * lanes_));
    return &twiddles_;
  }

 private:
  std::size_t vector_count() const { return tabled_points / lanes_ * (lanes_ - 1); }

  // Past the table only while it is being filled with vectors, whose roots are on it.
  std::uint64_t power(std::size_t j) const {
    std::uint64_t product = 1;
    for (; j > 0; j &= j - 1) product = Multiply_Mod(product, roots_[std::countr_zero(j)], p_);
    return product;
  }

  double single(std::size_t j) const {
    return j < singles_filled_ ? singles_.get()[j] : Balanced(power(j), p_);
  }

  void fill_singles(std::size_t count) {
    for (; singles_filled_ < count; ++singles_filled_)
      singles_.get()[singles_filled_] = Balanced(power(singles_filled_), p_);
  }

  void fill_vectors(std::size_t blocks) {
    double* to = vectors_.get() + blocks_filled_ * lanes_ * (lanes_ - 1);
    for (; blocks_filled_ < blocks; ++blocks_filled_) {
      for (std::size_t step = 1; step < lanes_; step *= 2) {
        for (std::size_t m = 0; m < step; ++m) {
          for (std::size_t lane = 0; lane < lanes_; ++lane)
            *to++ = single(step * (lanes_ * blocks_filled_ + lane) + m);
        }
      }
    }
  }

  std::uint64_t p_;
  std::size_t lanes_;
  Scratch<double> singles_;
  Scratch<double> vectors_;
  std::size_t singles_filled_ = 0;
  std::size_t blocks_filled_ = 0;
  std::uint64_t roots_[32] = {};
  Twiddles twiddles_ = {};
};

template <std::size_t prime, std::size_t lanes, bool inverse>
Table& The_Table() {
  static Table table(prime, lanes, inverse);
  return table;
}

using Choice = Table& (*)();
constexpr Choice choices[2][2][2] = {{{The_Table<0, 4, false>, The_Table<0, 4, true>},
                                      {The_Table<0, 8, false>, The_Table<0, 8, true>}},
                                     {{The_Table<1, 4, false>, The_Table<1, 4, true>},
                                      {The_Table<1, 8, false>, The_Table<1, 8, true>}}};

}  // namespace

const Twiddles* Find_Twiddles(std::size_t prime, std::size_t lanes, bool inverse,
                              std::size_t points) noexcept {
  static std::mutex filling;
  const std::lock_guard<std::mutex> lock(filling);
  return choices[prime][lanes / 8][inverse ? 1 : 0]().fill(points);
}

}  // namespace quorvex::native
