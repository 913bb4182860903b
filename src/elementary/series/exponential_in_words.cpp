#include "elementary/series/exponential_in_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "arith/limbs/column_words.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using columns::Multiples;
using columns::one_as_float;
using columns::Word;

constexpr std::size_t guard_digits = 5;

// Halvings are squares later, and make terms fewer: as many as make both together least.
std::size_t Halvings_For(std::size_t digits) {
  return static_cast<std::size_t>(std::fmax(1.5 * std::cbrt(static_cast<double>(digits)) - 4, 0));
}

std::size_t Words_For(std::size_t digits, std::size_t halvings) {
  constexpr double bits_a_digit = 3.3219281;
  const double needed = static_cast<double>(digits + guard_digits) * bits_a_digit;
  const double lost = std::log2(static_cast<double>(digits) / 2 + 40);  // of 1.24 (6 w + 21)
  return static_cast<std::size_t>((needed + lost + static_cast<double>(halvings)) / columns::bits) +
         1;
}

void Halve(Word* fraction, std::size_t count, std::size_t halvings) {
  Word above = 0;
  for (std::size_t place = 0; place < count; ++place) {
    const Word word = fraction[place];
    fraction[place] = (word >> halvings | above << (columns::bits - halvings)) & columns::mask;
    above = word;
  }
}

// The reciprocal of y^k / k! by floats.
class Term_Size {
 public:
  explicit Term_Size(const Word* y)
      : reciprocal_(one_as_float /
                    (static_cast<double>(y[0]) + (static_cast<double>(y[1]) + 2) / one_as_float)) {}

  void step() {
    product_ *= static_cast<double>(++k_) * reciprocal_;
    while (product_ >= one_as_float) {
      product_ /= one_as_float;
      ++zeros_;
    }
  }
  std::size_t k() const { return k_; }

  // Of words behind the point that are 0.
  std::size_t zeros() const { return zeros_; }

 private:
  double reciprocal_;
  double product_ = 1;
  std::size_t k_ = 0;
  std::size_t zeros_ = 0;
};

// e^y - 1 as a row behind the point.
class Taylor_Sum {
 public:
  // The fraction y is used up.
  Taylor_Sum(Word* y, std::size_t width)
      : y_(y),
        width_(width),
        count_(count_terms()),
        size_(group_size()),
        room_(columns::Room_For(width)),
        scratch_((size_ + 2) * room_),
        sum_(scratch_.data()),
        other_(sum_ + room_),
        powers_(other_ + room_) {
    Term_Size term(y);
    for (std::size_t index = 0; index < count_; ++index) {
      if (index % size_ == 0) zeros_of_groups_.push_back(term.zeros());
      term.step();
    }
    columns::Lift_Powers(y_, width_, size_, powers_, room_);
  }

  const Word* sum() {
    std::size_t width = 0;
    for (std::size_t group = zeros_of_groups_.size(); group-- > 0;) {
      Yield();
      const std::size_t before = width;
      width = width_ - zeros_of_groups_[group];
      multiply_sum(before, width);
      add_group(group * size_, width);
    }
    return sum_;
  }

 private:
  std::size_t count_terms() const {
    Term_Size term(y_);
    do {
      term.step();
    } while (term.zeros() < width_);
    return term.k();
  }

  // Terms are divided by fours.
  std::size_t group_size() const {
    const double best = std::sqrt(static_cast<double>(count_) / 3) / Multiples::most;
    return Multiples::most * static_cast<std::size_t>(std::fmax(std::round(best), 1));
  }

  // Brings the sum of what follows to more words, and multiplies it by the last power.
  void multiply_sum(std::size_t before, std::size_t width) {
    if (before == 0) {
      std::fill_n(sum_, columns::Room_For(width), 0);
      return;
    }
    std::copy_backward(sum_, sum_ + before, sum_ + width);
    std::fill_n(sum_, width - before, 0);
    std::fill_n(sum_ + width, columns::padding, 0);
    columns::Multiply(sum_, y_, width, other_);
    std::swap(sum_, other_);
  }

  // The terms behind that one, from the last on.
  void add_group(std::size_t before, std::size_t width) {
    for (std::size_t last = std::min(before + size_, count_); last > before;) {
      Multiples multiples;
      Word divisor = 1;
      for (std::size_t way = 0; way < Multiples::most; ++way) {
        const bool is_there = last > before && divisor * last < columns::Divisor::end;
        multiples.lifted[way] = powers_ + (last - before - (is_there ? 1 : 0)) * room_;
        multiples.factors[way] = is_there ? divisor : 0;
        if (is_there) divisor *= last--;
      }
      divide_sum(columns::Add_Multiples(multiples, width, sum_), width, divisor);
    }
  }

  void divide_sum(Word above, std::size_t width, Word divisor) {
    if (divisor == 1) return;
    columns::Divisions division;
    division.divisors[0] = columns::Divisor(divisor);
    division.rests[0] = above;
    division.rows[0] = sum_;
    division.quotients[0] = sum_;
    columns::Divide(division, 1, width);
  }

  Word* y_;
  std::size_t width_;
  std::size_t count_;
  std::size_t size_;  // of a group
  std::size_t room_;
  limbs::Scratch scratch_;
  Word* sum_;
  Word* other_;
  Word* powers_;
  std::vector<std::size_t> zeros_of_groups_;
};

// (1 + y)^2 - 1 = 2 y + y^2
void Square_With_One(Word* row, std::size_t count, Word* fraction, Word* square) {
  Yield();
  std::reverse_copy(row, row + count, fraction);
  columns::Multiply(row, fraction, count, square);
  Word carry = 0;
  for (std::size_t place = 0; place < count; ++place) {
    carry += 2 * row[place] + square[place];
    row[place] = carry & columns::mask;
    carry >>= columns::bits;
  }
}

}  // namespace

limbs::Number Exponential_In_Words(const limbs::Number& r, std::size_t digits) {
  const std::size_t halvings = Halvings_For(digits);
  const std::size_t width = std::max<std::size_t>(Words_For(digits, halvings), 2);
  limbs::Scratch scratch(3 * columns::Room_For(width));
  Word* const fraction = scratch.data();
  Word* const row = fraction + columns::Room_For(width);
  Word* const square = row + columns::Room_For(width);
  columns::Fraction_Of(r, width, fraction);
  Halve(fraction, width, halvings);
  std::copy_n(Taylor_Sum(fraction, width).sum(), width, row);
  std::fill_n(row + width, columns::padding, 0);
  for (std::size_t left = halvings; left > 0; --left) Square_With_One(row, width, fraction, square);
  return columns::Fraction_To_Decimal(row, width, limbs::Count_For(digits + guard_digits));
}

}  // namespace quorvex
