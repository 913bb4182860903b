#include "elementary/series/tail_of_powers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "arith/limbs/column_words.h"
#include "elementary/series/tail_ends.h"
#include "elementary/series/term_sizes.h"
#include "expects.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using columns::Divisions;
using columns::Multiples;
using columns::one;
using columns::one_as_float;
using columns::Word;
using limbs::Number;

// A row that is told where its numbers stand.
struct Row {
  Word* words = nullptr;
  std::size_t count = 0;

  void strip() {
    while (count > 1 && words[count - 1] == 0) --count;
  }
};

// Terms that are divided together, from the `first` of their group on.
struct Terms_Together {
  std::size_t first;
  std::size_t count;
  Word divisor;
  Multiples multiples;
};

// Gives the room for rows one after the other.
class Rows {
 public:
  Rows(std::size_t rows, std::size_t width)
      : room_(columns::Room_For(width)), scratch_(rows * room_), next_(scratch_.data()) {}

  Word* next(std::size_t rows = 1) { return std::exchange(next_, next_ + rows * room_); }

  // From each row to the next.
  std::size_t room() const { return room_; }

 private:
  std::size_t room_;
  limbs::Scratch scratch_;
  Word* next_;
};

std::size_t Size_Of_Groups(std::uint64_t terms) {
  const auto half = static_cast<std::size_t>(std::sqrt(static_cast<double>(terms) * 0.8) / 2);
  return 2 * (half + 1);
}

class Powers_Tail {
 public:
  // `power` is the last one before the tail, in units of the sum's last place.
  Powers_Tail(const Series_Tail& tail, std::uint64_t terms, const Number& power)
      : rule_(tail.rule),
        k_(tail.state.k),
        left_(terms),
        doubt_(tail.doubt),
        errors_(tail),
        size_(Size_Of_Groups(terms)),
        width_(static_cast<std::size_t>(std::max<std::int64_t>(power.top(), 0)) + 2),
        rows_(size_ + other_rows, width_) {
    giant_.words = rows_.next();
    giant_.count = columns::Row_Of(power, giant_.words);
    width_ = giant_.count;
    next_giant_ = rows_.next();
    product_ = rows_.next();
    for (Word*& quotient : divisions_.quotients) quotient = rows_.next();
    sum_of_group_ = rows_.next();
    sum_ = rows_.next();
    last_baby_ = rows_.next();
    babies_ = rows_.next(size_);
    std::fill_n(sum_, width_, 0);
    cut_off_ = static_cast<double>(6 * width_ + 16) * columns::Divisor::end / one_as_float;
    columns::Fraction_Of(tail.factor, width_, last_baby_);
    columns::Lift_Powers(last_baby_, width_, size_, babies_, rows_.room());
  }

  // The sum of the terms as they are rounded, without the sign of the first.
  std::optional<Number> sum() {
    if (cut_off_ * static_cast<double>(left_) > 1e-2) return {};
    while (left_ > 0) {
      if (!add_group(static_cast<std::size_t>(std::min<std::uint64_t>(left_, size_)))) return {};
    }
    return rounded_sum();
  }

 private:
  static constexpr std::size_t other_rows = 6 + Divisions::most;
  static constexpr double negligible = 1e-8;  // of errors by exact steps

  const Word* baby_at(std::size_t index) const { return babies_ + index * rows_.room(); }

  Word divisor_of(std::size_t index) const {
    return rule_.term_divisor(k_ + (index + 1) * rule_.stride);
  }

  // From the first on as many of a group as a divisor has room for.
  void take_terms(std::size_t first, std::size_t end, Terms_Together& terms) const {
    std::array<Word, Multiples::most> divisors{};
    terms.first = first;
    terms.count = 0;
    terms.divisor = 1;
    for (; terms.count < Multiples::most && first + terms.count < end; ++terms.count) {
      const Word next = divisor_of(first + terms.count);
      if (terms.divisor * next >= columns::Divisor::end) break;
      terms.divisor *= next;
      divisors[terms.count] = next;
    }
    for (std::size_t way = 0; way < Multiples::most; ++way) {
      const bool is_there = way < terms.count;
      terms.multiples.lifted[way] = baby_at(first + (is_there ? way : 0));
      terms.multiples.factors[way] = is_there ? terms.divisor / divisors[way] : 0;
    }
  }

  bool add_group(std::size_t count) {
    std::fill_n(sum_of_group_, giant_.count, 0);
    for (std::size_t first = 0; first < count;) {
      Yield();
      std::size_t ways = 0;
      for (; ways < Divisions::most && first < count; ++ways) {
        take_terms(first, count, terms_[ways]);
        divisions_.divisors[ways] = columns::Divisor(terms_[ways].divisor);
        first += terms_[ways].count;
      }
      if (!round_terms(ways)) return false;
      add_to_group(ways);
    }
    columns::Multiply(giant_.words, sum_of_group_, giant_.count, product_);
    add_product();
    k_ += count * rule_.stride;
    left_ -= count;
    if (left_ > 0) step_giant();
    return true;
  }

  bool is_subtracted(std::size_t index) const { return rule_.alternates && index % 2 == 1; }

  // False where a term may be rounded to either side.
  bool round_terms(std::size_t ways) {
    for (std::size_t way = 0; way < ways; ++way) {
      divisions_.rests[way] = 0;
      divisions_.rows[way] = giant_.words;
      std::fill_n(divisions_.quotients[way] + giant_.count, columns::padding, 0);
    }
    columns::Divide(divisions_, ways, giant_.count);
    for (std::size_t way = 0; way < ways; ++way) {
      const Terms_Together& terms = terms_[way];
      for (std::size_t index = 0; index < terms.count; ++index) {
        const Word fraction =
            terms.multiples.factors[index] *
            columns::Lowest_Of_Product(divisions_.quotients[way], terms.multiples.lifted[index],
                                       giant_.count);
        // To the nearest whole number: above a half the highest bit is that of a minus.
        const std::int64_t rounded_off = static_cast<std::int64_t>(fraction) >> columns::lift;
        if (std::abs(rounded_off) >= next_limit()) return false;
        rounded_off_ += is_subtracted(terms.first + index) ? -rounded_off : rounded_off;
      }
    }
    return true;
  }

  // Adds the terms in units of the group's first power.
  void add_to_group(std::size_t ways) {
    for (std::size_t way = 0; way < ways; ++way) {
      divisions_.rows[way] = divisions_.quotients[way];
      divisions_.rests[way] = columns::Sum_Of(terms_[way].multiples, rule_.alternates, giant_.count,
                                              divisions_.quotients[way]);
    }
    columns::Divide(divisions_, ways, giant_.count);
    std::array<std::int64_t, Divisions::most> signs{};
    for (std::size_t way = 0; way < ways; ++way) {
      signs[way] = is_subtracted(terms_[way].first) ? -1 : 1;
    }
    std::int64_t carry = 0;
    for (std::size_t place = 0; place < giant_.count; ++place) {
      Word& sum = sum_of_group_[giant_.count - 1 - place];
      carry += static_cast<std::int64_t>(sum);
      for (std::size_t way = 0; way < ways; ++way) {
        carry += signs[way] * static_cast<std::int64_t>(divisions_.quotients[way][place]);
      }
      sum = static_cast<Word>(carry) & columns::mask;
      carry >>= columns::bits;
    }
  }

  // What rounding may take off or add where it is in no doubt. From the second step on, errors of
  // exact steps grow less, since powers are halved at least.
  std::int64_t next_limit() {
    if (error_ > negligible) {
      error_ = errors_.next();
      const double from_half = std::fmax(0.5 - (error_ + cut_off_ + doubt_), 0);
      limit_ = static_cast<std::int64_t>(from_half * one_as_float);
    }
    return limit_;
  }

  void add_product() {
    Word carry = 0;
    for (std::size_t place = 0; place < width_ && (place < giant_.count || carry > 0); ++place) {
      carry += sum_[place] + (place < giant_.count ? product_[place] : 0);
      sum_[place] = carry & columns::mask;
      carry >>= columns::bits;
    }
  }

  void step_giant() {
    columns::Multiply(giant_.words, last_baby_, giant_.count, next_giant_);
    std::swap(giant_.words, next_giant_);
    giant_.strip();
  }

  // What is left is a whole number but for errors, and rounded to it.
  std::optional<Number> rounded_sum() {
    constexpr auto half = static_cast<std::int64_t>(one / 2);
    columns::Signed_Wide carry = half - rounded_off_;
    for (std::size_t place = 0; place < width_; ++place) {
      carry += sum_[place];
      sum_[place] = static_cast<Word>(carry) & columns::mask;
      carry >>= columns::bits;
    }
    Expects(carry == 0);
    constexpr double farthest = 0.02;
    const auto from_whole = static_cast<double>(static_cast<std::int64_t>(sum_[0]) - half);
    if (std::fabs(from_whole) > farthest * one_as_float) return {};
    return columns::To_Decimal(sum_ + 1, width_ - 1);
  }

  const Series_Rule& rule_;
  std::uint64_t k_;
  std::uint64_t left_;
  double doubt_;
  Error_Of_Steps errors_;
  double error_ = 1;
  double cut_off_ = 0;
  std::int64_t limit_ = 0;
  std::size_t size_;   // of a group
  std::size_t width_;  // words of the first giant
  Rows rows_;
  Row giant_;  // the power that begins a group
  Word* next_giant_;
  Word* product_;
  Word* sum_of_group_;
  Word* sum_;
  Word* last_baby_;
  Word* babies_;  // powers of the factor, from the first on
  std::array<Terms_Together, Divisions::most> terms_;
  Divisions divisions_;
  columns::Signed_Wide rounded_off_ = 0;
};

}  // namespace

std::optional<Step_Number> Sum_Of_Powers(const Series_Tail& tail) {
  Expects(tail.rule.power_divisor == nullptr && tail.rule.term_divisor != nullptr);
  const std::optional<std::uint64_t> terms = Count_Powers(tail);
  if (!terms) return std::nullopt;
  if (*terms == 0) return tail.state.sum;
  const std::optional<Number> rest =
      Powers_Tail(tail, *terms, Scaled(tail.state.power.in_limbs(), tail.shift())).sum();
  if (!rest) return std::nullopt;
  return With_Rest(tail, *rest);
}

}  // namespace quorvex
