#include "elementary/series/tail_in_turn.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "arith/limbs/column_words.h"
#include "elementary/series/tail_ends.h"
#include "elementary/series/term_sizes.h"
#include "expects.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using columns::Loose_Divisor;
using columns::one;
using columns::one_as_float;
using columns::Word;
using limbs::Number;
using limbs::Wide;

// Of the longest row: so many products of a word and one of a loose quotient have room in a column.
constexpr std::size_t most_words = 64;

enum class Answer { no, yes, in_doubt };

class Tail_In_Turn {
 public:
  // `power` is the last one before the tail, in units of the sum's last place.
  Tail_In_Turn(const Series_Tail& tail, const Number& power)
      : tail_(tail), rule_(tail.rule), errors_(tail) {
    Expects(power.top() + 2 <= static_cast<std::int64_t>(most_words));
    count_ = columns::Row_Of(power, power_);
    sum_count_ = count_;
    columns::Fraction_Of(tail.factor, count_, factor_.data());
    for (Columns& sums : sums_) std::fill_n(sums.data(), sum_count_, 0);
    cut_off_ = static_cast<double>(6 * count_ + 25) / one_as_float;
    set_end();
  }

  // The sum of the terms as they are rounded, without the sign of the first.
  std::optional<Number> sum() {
    for (std::uint64_t k = tail_.state.k + rule_.stride; k <= tail_.last_k; k += rule_.stride) {
      Yield();
      step(k);
      set_doubt();
      const Answer ends = is_last(k);
      if (ends == Answer::in_doubt || !add_term(k)) return {};
      if (ends == Answer::yes) break;
      if (rule_.alternates) std::swap(sums_of_sign_, sums_of_other_sign_);
    }
    return whole_sum();
  }

 private:
  using Row = std::array<Word, columns::Room_For(most_words)>;
  using Columns = std::array<Wide, most_words>;

  // The end in words, and the highest of them.
  void set_end() {
    constexpr double bits_of_digit = 3.321928094887362;
    const auto end = static_cast<double>(tail_.last_power + 1 + tail_.shift());
    const double words = std::floor(end * bits_of_digit / columns::bits);
    end_ = std::exp2(end * bits_of_digit - words * columns::bits);
    end_count_ = static_cast<std::size_t>(words) + 2;
  }

  void step(std::uint64_t k) {
    columns::Multiply(power_, factor_.data(), count_, next_power_);
    std::swap(power_, next_power_);
    if (rule_.power_divisor != nullptr) {
      const Loose_Divisor divisor(rule_.power_divisor(k));
      Word rest = 0;
      for (std::size_t place = count_; place-- > 0;) {
        power_[place] = divisor.divide(rest, power_[place]);
      }
    }
    while (count_ > 1 && power_[count_ - 1] == 0) --count_;
  }

  // How near to the middle between two units a term is in doubt. From the second step on, errors of
  // exact steps grow less, since powers are halved at least.
  void set_doubt() {
    constexpr double negligible = 1e-8;
    if (error_ <= negligible) return;
    error_ = errors_.next();
    const double doubt = error_ + cut_off_ + tail_.doubt;
    doubt_at_end_ = float_margin + doubt;
    doubt_ = static_cast<Word>(std::fmin(doubt, 0.5) * one_as_float);
  }

  // Whether the term, or its power, is below the end.
  Answer is_last(std::uint64_t k) const {
    if (count_ > end_count_ + 1) return Answer::no;
    if (count_ + 1 < end_count_) return Answer::yes;
    auto size = static_cast<double>(power_[count_ - 1]);
    if (count_ > 1) size += static_cast<double>(power_[count_ - 2]) / one_as_float;
    if (count_ > end_count_) size *= one_as_float;
    if (count_ < end_count_) size /= one_as_float;
    const bool is_divided = !rule_.ends_by_power && rule_.term_divisor != nullptr;
    const double end = is_divided ? end_ * static_cast<double>(rule_.term_divisor(k)) : end_;
    if (size < end * (1 - doubt_at_end_)) return Answer::yes;
    return size > end * (1 + doubt_at_end_) ? Answer::no : Answer::in_doubt;
  }

  // Adds the term as it is rounded; false where that is in doubt.
  bool add_term(std::uint64_t k) {
    Wide* const sums = sums_of_sign_;
    Word fraction = power_[0];
    if (rule_.term_divisor == nullptr) {
      for (std::size_t place = 1; place < count_; ++place) sums[place - 1] += power_[place];
    } else {
      const Loose_Divisor divisor(rule_.term_divisor(k));
      Word rest = 0;
      for (std::size_t place = count_; place-- > 1;) {
        sums[place - 1] += divisor.divide(rest, power_[place]);
      }
      fraction = divisor.divide(rest, fraction);
    }
    const Word raised = fraction + one / 2;
    sums[0] += raised >> columns::bits;
    const Word behind = raised & columns::mask;
    return behind >= doubt_ && behind < one - doubt_;
  }

  Number whole_sum() {
    Word* const words = next_power_;
    columns::Signed_Wide carry = 0;
    for (std::size_t place = 0; place < sum_count_; ++place) {
      carry += static_cast<columns::Signed_Wide>(sums_[0][place] - sums_[1][place]);
      words[place] = static_cast<Word>(carry) & columns::mask;
      carry >>= columns::bits;
    }
    Expects(carry == 0);
    return columns::To_Decimal(words, sum_count_);
  }

  const Series_Tail& tail_;
  const Series_Rule& rule_;
  Error_Of_Steps errors_;
  double error_ = 1;
  double cut_off_ = 0;
  Word doubt_ = 0;
  double doubt_at_end_ = 0;
  double end_ = 0;
  std::size_t end_count_ = 0;
  std::size_t count_ = 0;  // words of the power
  std::size_t sum_count_ = 0;
  std::array<Row, 2> rows_;
  Row factor_;
  std::array<Columns, 2> sums_;  // of the terms with the sign of the first, and of the others
  Word* power_ = rows_[0].data();
  Word* next_power_ = rows_[1].data();
  Wide* sums_of_sign_ = sums_[0].data();
  Wide* sums_of_other_sign_ = sums_[1].data();
};

}  // namespace

std::optional<Step_Number> Sum_In_Turn(const Series_Tail& tail) {
  const std::optional<Number> rest =
      Tail_In_Turn(tail, Scaled(tail.state.power.in_limbs(), tail.shift())).sum();
  if (!rest) return std::nullopt;
  return With_Rest(tail, *rest);
}

}  // namespace quorvex
