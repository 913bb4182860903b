#include "elementary/series/exponential_sum.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "arith/limbs/limb_rows.h"
#include "elementary/series/exponential_in_words.h"
#include "elementary/series/term_sizes.h"
#include "expects.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;
using limbs::Row_Divisor;
using limbs::rows_at_once;

constexpr auto all_digits = static_cast<std::size_t>(std::numeric_limits<std::int64_t>::max());

// Halvings are squares later, and make terms fewer: as many as make both together least.
std::size_t Halvings_For(std::size_t digits) {
  constexpr double bits_a_digit = 3.33;
  constexpr double few = 12;  // bits that a term gains by its factorial and an argument below 0.1
  const double best = std::cbrt(bits_a_digit * static_cast<double>(digits) / 2) - few;
  return static_cast<std::size_t>(std::fmax(best, 0));
}

Number Halved(const Number& number, std::size_t halvings, std::size_t width) {
  constexpr std::size_t most_at_once = 30;
  const auto low = -static_cast<std::int64_t>(width);
  limbs::Scratch row(width);
  limbs::To_Row(number, low, width, row.data());
  while (halvings > 0) {
    const std::size_t at_once = std::min(halvings, most_at_once);
    const Row_Divisor divisor(Limb{1} << at_once);
    std::array<Limb*, 1> rows{row.data()};
    limbs::Divide_Rows(rows.data(), &divisor, 1, width, rows.data());
    halvings -= at_once;
  }
  Number halved;
  limbs::Trim({row.data(), width, low, false}, halved);
  return halved;
}

// A term x^k / k! by its size.
class Term_Size {
 public:
  explicit Term_Size(double x) : x_(x) {}

  void step() {
    ++k_;
    size_ *= x_ / static_cast<double>(k_);
    for (; size_ * limb_ < 1; size_ *= limb_) ++zeros_;
  }
  std::size_t k() const { return k_; }

  // Of limbs behind the point that are 0.
  std::size_t zeros() const { return zeros_; }

 private:
  static constexpr double limb_ = 1e18;

  double x_;
  double size_ = 1;
  std::size_t k_ = 0;
  std::size_t zeros_ = 0;
};

// The series of one argument, in `width` limbs behind the point.
class Taylor_Sum {
 public:
  Taylor_Sum(const Number& x, std::size_t width)
      : count_(count_terms(x, width)),
        size_(group_size(count_)),
        powers_(size_, width),
        sum_(width + 1) {
    Term_Size term(Upper_Bound(x));
    for (std::size_t index = 0; index < count_; ++index) {
      if (index % size_ == 0) zeros_of_groups_.push_back(term.zeros());
      term.step();
    }
    fill_powers(x);
  }

  Number sum() {
    Number sum;
    for (std::size_t group = zeros_of_groups_.size(); group-- > 0;) {
      // A group's sum counts no more than what comes before it lets it.
      const std::size_t width = powers_.width() - zeros_of_groups_[group];
      sum = sum_of_group(group, limbs::Product_Down_To(-to_signed(width), last_power_, sum), width);
    }
    return sum;
  }

 private:
  static std::int64_t to_signed(std::size_t count) { return static_cast<std::int64_t>(count); }

  static std::size_t count_terms(const Number& x, std::size_t width) {
    Term_Size term(Upper_Bound(x));
    while (term.zeros() <= width) term.step();
    return term.k();
  }

  static std::size_t group_size(std::size_t terms) {
    const auto root = static_cast<std::size_t>(std::sqrt(static_cast<double>(terms) / 2));
    return (root / rows_at_once + 1) * rows_at_once;
  }

  void fill_powers(const Number& x) {
    const std::int64_t low = -to_signed(powers_.width());
    std::vector<Number> powers;
    powers.reserve(size_);
    for (std::size_t index = 0; index < size_; ++index) {
      const std::size_t half = index / 2;
      Number power = index == 0       ? x
                     : index % 2 == 1 ? limbs::Product_Down_To(low, powers[half], powers[half])
                                      : limbs::Product_Down_To(low, last_power_, x);
      limbs::To_Row(power, low, powers_.width(), powers_.row(index));
      zeros_.push_back(power.is_zero() ? powers_.width() : static_cast<std::size_t>(-power.top()));
      last_power_ = power;
      powers.push_back(std::move(power));
    }
  }

  // (x + (x^2 + ... (x^m + what follows) / (g m + m) ...) / (g m + 2)) / (g m + 1)
  Number sum_of_group(std::size_t group, const Number& what_follows, std::size_t width) {
    const std::size_t before = group * size_;
    limbs::Scratch row(width + 1);
    limbs::To_Row(what_follows, -to_signed(width), width, row.data());
    std::copy_n(row.data(), width, sum_.data());
    sum_[width] = 0;
    std::size_t left = std::min(count_ - before, size_);
    const std::size_t undivided = group == 0 ? 1 : 0;
    while (left > undivided) {
      const std::size_t ways = std::min(left - undivided, (left - 1) % rows_at_once + 1);
      divide_sum(before, left, ways, width);
      left -= ways;
    }
    if (left > 0) {
      const Limb* const first = powers_.row(0);
      limbs::Add_Rows(sum_.data(), &first, 1, width, false);
    }
    limbs::Settle(sum_.data(), width + 1);
    std::copy_n(sum_.data(), width + 1, row.data());
    Number sum;
    limbs::Trim({row.data(), width + 1, -to_signed(width), false}, sum);
    return sum;
  }

  // Takes the powers up to the `last` of a group into the sum, and divides it after each.
  void divide_sum(std::size_t before, std::size_t last, std::size_t ways, std::size_t width) {
    Yield();
    std::array<Limb*, rows_at_once> rows{};
    std::vector<Row_Divisor> divisors;
    divisors.reserve(rows_at_once);
    for (std::size_t way = 0; way < ways; ++way) {
      const std::size_t index = last - way - 1;
      rows[way] = powers_.row(index) + (powers_.width() - width);
      divisors.emplace_back(before + index + 1);
    }
    const std::size_t zeros = std::min(zeros_[last - ways], width);
    limbs::Divide_Sums(sum_.data(), rows.data(), divisors.data(), ways, width - zeros, false);
  }

  std::size_t count_;
  std::size_t size_;  // of a group
  limbs::Row_Table powers_;
  std::vector<std::size_t> zeros_;  // limbs of a power that are 0 behind the point
  std::vector<std::size_t> zeros_of_groups_;
  Number last_power_;
  std::vector<limbs::Loose_Limb> sum_;
};

}  // namespace

Number Exponential_Less_One(const Number& r, std::size_t digits) {
  Expects(!r.is_zero() && !r.negative && limbs::Leading_Power(r) < -1 && r.top() >= 0);
  constexpr std::size_t most_in_words = 3000;
  if (digits <= most_in_words) return Exponential_In_Words(r, digits);
  const std::size_t halvings = Halvings_For(digits);
  constexpr std::size_t guard_digits = 6;
  const std::size_t width = limbs::Count_For(digits + guard_digits + (halvings + 4) / 3);
  const auto low = -static_cast<std::int64_t>(width);
  Number power = Taylor_Sum(Halved(r, halvings, width), width).sum();
  for (std::size_t left = halvings; left > 0; --left) {
    Yield();
    const Number square = limbs::Product_Down_To(low, power, power);
    limbs::Add(power, power, false, all_digits, power);
    limbs::Add(power, square, false, all_digits, power);
  }
  return power;
}

}  // namespace quorvex
