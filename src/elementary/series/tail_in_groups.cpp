#include "elementary/series/tail_in_groups.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "arith/limbs/limb_rows.h"
#include "elementary/series/tail_ends.h"
#include "elementary/series/term_sizes.h"
#include "host/platform.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Number;
using limbs::Row_Divisor;
using limbs::Row_Table;
using limbs::rows_at_once;

constexpr auto all_digits = static_cast<std::size_t>(std::numeric_limits<std::int64_t>::max());

// Of all rows together.
constexpr std::size_t most_limbs = std::size_t{1} << 20U;

void Add(Number& sum, const Number& other) {
  limbs::Add(sum, other, other.negative, all_digits, sum);
}

std::size_t Rows_For(std::uint64_t terms, std::size_t width) {
  const double root = std::sqrt(static_cast<double>(terms));
  const std::size_t room = std::max(most_limbs / width, rows_at_once);
  const std::size_t rows = std::min(static_cast<std::size_t>(root) + 1, room);
  return (rows + rows_at_once - 1) / rows_at_once * rows_at_once;
}

// The tail of one series. Powers of the factor and what is divided of them are the rows of two
// tables; a group takes of each row the limbs that it has room for.
class Groups {
 public:
  Groups(const Series_Tail& tail, std::uint64_t terms)
      : rule_(tail.rule),
        k_(tail.state.k),
        left_(terms),
        doubt_(tail.doubt),
        errors_(tail),
        giant_(Scaled(tail.state.power.in_limbs(), tail.shift())),
        size_(Rows_For(terms, limbs_of_giant() + 1)),
        babies_(size_, limbs_of_giant() + 1),
        divided_(rule_.term_divisor == nullptr ? 0 : size_, babies_.width()),
        turns_(rule_.power_divisor == nullptr ? 0 : rows_at_once, babies_.width()),
        zeros_(size_),
        row_(babies_.width()),
        sum_of_row_(babies_.width() + 1) {
    giant_.negative = false;
    const auto limbs = static_cast<double>(2 * (size_ + babies_.width()));
    cut_off_ = (7 * static_cast<double>(terms) + limbs + 20) / static_cast<double>(limbs::base);
    fill_babies(tail.factor);
  }

  // The sum of the terms as they are rounded, without the sign of the first.
  std::optional<Number> sum() {
    constexpr double most_cut_off = 1e-9;
    if (cut_off_ > most_cut_off || cut_off_ * static_cast<double>(left_) > 1e-2) return {};
    while (left_ > 0) {
      if (!add_group(static_cast<std::size_t>(std::min<std::uint64_t>(left_, size_)))) return {};
    }
    return rounded_sum();
  }

 private:
  std::size_t limbs_of_giant() const {
    return static_cast<std::size_t>(std::max<std::int64_t>(giant_.top(), 0));
  }

  void fill_babies(const Number& factor) {
    const std::int64_t low = -static_cast<std::int64_t>(babies_.width());
    std::vector<Number> powers;
    powers.reserve(size_);
    for (std::size_t index = 0; index < size_; ++index) {
      const std::size_t half = index / 2;
      Number power = index == 0       ? factor
                     : index % 2 == 1 ? limbs::Product_Down_To(low, powers[half], powers[half])
                                      : limbs::Product_Down_To(low, last_baby_, factor);
      limbs::To_Row(power, low, babies_.width(), babies_.row(index));
      const std::int64_t zeros = power.is_zero() ? -low : std::min(-power.top(), -low);
      zeros_[index] = static_cast<std::size_t>(zeros);
      last_baby_ = power;
      powers.push_back(std::move(power));
    }
  }

  // The limbs that the group has room for of some rows.
  struct Part {
    std::array<Limb*, rows_at_once> rows;
    std::size_t count;
  };

  Part part_of(Row_Table& table, std::size_t first, std::size_t ways) {
    Part part{{}, width_ - std::min(zeros_[first], width_)};
    for (std::size_t way = 0; way < ways; ++way) {
      part.rows[way] = table.row(first + way) + (table.width() - width_);
    }
    return part;
  }

  std::vector<Row_Divisor> divisors(Divisor_Of_Counter divisor, std::size_t count) const {
    std::vector<Row_Divisor> divisors;
    if (divisor == nullptr) return divisors;
    divisors.reserve(count);
    for (std::size_t index = 1; index <= count; ++index) {
      divisors.emplace_back(divisor(k_ + index * rule_.stride));
    }
    return divisors;
  }

  bool add_group(std::size_t count) {
    width_ = limbs_of_giant() + 1;
    limbs::To_Row(giant_, -1, width_, row_.data());
    const std::vector<Row_Divisor> power_divisors = divisors(rule_.power_divisor, count);
    const std::vector<Row_Divisor> term_divisors = divisors(rule_.term_divisor, count);
    if (!term_divisors.empty()) divide_babies(term_divisors);
    if (!(power_divisors.empty() ? round_terms(row_.data(), 0, count)
                                 : divide_giant(power_divisors))) {
      return false;
    }
    const Number whole = power_divisors.empty() ? sum_of_terms(count) : sum_of(power_divisors);
    Add(sum_, limbs::Product_Down_To(-1, giant_, whole));
    k_ += count * rule_.stride;
    left_ -= count;
    if (left_ > 0) next_giant(!power_divisors.empty());
    return true;
  }

  void divide_babies(const std::vector<Row_Divisor>& divisors) {
    for (std::size_t first = 0; first < divisors.size(); first += rows_at_once) {
      const std::size_t ways = std::min(divisors.size() - first, rows_at_once);
      const Part from = part_of(babies_, first, ways);
      const Part to = part_of(divided_, first, ways);
      limbs::Divide_Rows(from.rows.data(), &divisors[first], ways, from.count, to.rows.data());
    }
  }

  // Of every term the group's first power divided as far as that term.
  bool divide_giant(const std::vector<Row_Divisor>& divisors) {
    for (std::size_t first = 0; first < divisors.size(); first += rows_at_once) {
      const std::size_t ways = std::min(divisors.size() - first, rows_at_once);
      std::array<Limb*, rows_at_once> turns{};
      for (std::size_t way = 0; way < ways; ++way) turns[way] = turns_.row(way);
      limbs::Divide_In_Turn(row_.data(), &divisors[first], ways, width_, turns.data());
      for (std::size_t way = 0; way < ways; ++way) {
        if (!round_terms(turns[way], first + way, 1)) return false;
      }
      std::copy_n(turns[ways - 1], width_, row_.data());
    }
    return true;
  }

  // Terms of the group that are a row times what stands in the tables. False where one may be
  // rounded to either side.
  bool round_terms(const Limb* row, std::size_t first, std::size_t count) {
    const Row_Table& table = rule_.term_divisor == nullptr ? babies_ : divided_;
    std::size_t above = width_ - 1;
    while (above > 0 && row[above] == 0) --above;
    for (std::size_t index = first; index < first + count; ++index) {
      Yield();
      const Limb fraction =
          limbs::Fraction_Of_Product(row, above, table.row_end(index), zeros_[index]);
      constexpr Limb half = limbs::base / 2;
      const double from_half = (static_cast<double>(fraction) - static_cast<double>(half)) /
                               static_cast<double>(limbs::base);
      if (std::fabs(from_half) <= errors_.next() + cut_off_ + doubt_) return false;
      const auto rounded_off = static_cast<std::int64_t>(fraction) -
                               static_cast<std::int64_t>(fraction < half ? 0 : limbs::base);
      rounded_off_ += rule_.alternates && index % 2 == 1 ? -rounded_off : rounded_off;
    }
    return true;
  }

  // The terms of the group in units of its first power, where powers are not divided.
  Number sum_of_terms(std::size_t count) {
    constexpr std::size_t rows_between = 2 * rows_at_once;
    Row_Table& table = rule_.term_divisor == nullptr ? babies_ : divided_;
    std::fill_n(sum_of_row_.data(), width_ + 1, 0);
    for (std::size_t first = 0; first < count; first += rows_at_once) {
      const std::size_t ways = std::min(count - first, rows_at_once);
      const Part part = part_of(table, first, ways);
      limbs::Add_Rows(sum_of_row_.data(), part.rows.data(), ways, part.count, rule_.alternates);
      if (first % rows_between != 0) limbs::Settle(sum_of_row_.data(), width_ + 1);
    }
    return settled_sum();
  }

  // The same where they are divided: the last one first.
  Number sum_of(std::vector<Row_Divisor> divisors) {
    Row_Table& table = rule_.term_divisor == nullptr ? babies_ : divided_;
    std::fill_n(sum_of_row_.data(), width_ + 1, 0);
    std::reverse(divisors.begin(), divisors.end());
    for (std::size_t done = 0; done < divisors.size(); done += rows_at_once) {
      const std::size_t ways = std::min(divisors.size() - done, rows_at_once);
      const std::size_t first = divisors.size() - done - ways;
      Part part = part_of(table, first, ways);
      std::reverse(part.rows.begin(), part.rows.begin() + static_cast<std::ptrdiff_t>(ways));
      limbs::Divide_Sums(sum_of_row_.data(), part.rows.data(), &divisors[done], ways, part.count,
                         rule_.alternates);
    }
    return settled_sum();
  }

  Number settled_sum() {
    limbs::Settle(sum_of_row_.data(), width_ + 1);
    limbs::Scratch limbs(width_ + 1);
    std::copy_n(sum_of_row_.data(), width_ + 1, limbs.data());
    Number sum;
    limbs::Trim({limbs.data(), width_ + 1, -static_cast<std::int64_t>(width_), false}, sum);
    return sum;
  }

  void next_giant(bool is_divided) {
    if (is_divided) limbs::Trim({row_.data(), width_, -1, false}, giant_);
    giant_ = limbs::Product_Down_To(-1, giant_, last_baby_);
  }

  // What is left is a whole number but for errors, and rounded to it.
  std::optional<Number> rounded_sum() {
    const bool is_less = rounded_off_ < 0;
    const auto magnitude = static_cast<limbs::Wide>(is_less ? -rounded_off_ : rounded_off_);
    std::array<Limb, 3> parts{static_cast<Limb>(magnitude % limbs::base),
                              static_cast<Limb>(magnitude / limbs::base), 0};
    Number rounded_off;
    limbs::Trim({parts.data(), 2, -1, !is_less}, rounded_off);
    Add(sum_, rounded_off);
    Limb half_limb = limbs::base / 2;
    Number half;
    limbs::Trim({&half_limb, 1, -1, false}, half);
    Add(sum_, half);
    Number whole = limbs::Floor(sum_);
    Number rest = whole;
    rest.negative = !rest.negative;
    Add(rest, sum_);
    const double from_whole = rest.is_zero() ? -0.5 : Upper_Bound(rest) - 0.5;
    constexpr double farthest = 0.02;
    if (std::fabs(from_whole) > farthest) return {};
    return whole;
  }

  __extension__ using Signed_Wide = __int128;

  const Series_Rule& rule_;
  std::uint64_t k_;
  std::uint64_t left_;
  double doubt_;
  Error_Of_Steps errors_;
  double cut_off_ = 0;
  Number giant_;       // the power that begins a group
  std::size_t size_;   // of a group
  Row_Table babies_;   // powers of the factor, from the first on
  Row_Table divided_;  // the same, divided for the terms of a group
  Row_Table turns_;
  std::vector<std::size_t> zeros_;  // limbs of a power that are 0 behind the point
  Number last_baby_;
  std::size_t width_ = 0;  // limbs of the group's numbers
  std::vector<Limb> row_;  // the first power, divided
  std::vector<limbs::Loose_Limb> sum_of_row_;
  Number sum_;
  Signed_Wide rounded_off_ = 0;  // of all terms, in units of a limb behind the point
};

}  // namespace

std::optional<Step_Number> Sum_In_Groups(const Series_Tail& tail) {
  const std::optional<std::uint64_t> terms = Count_Terms(tail, Row_Divisor::end);
  if (!terms) return std::nullopt;
  if (*terms == 0) return tail.state.sum;
  const std::optional<Number> rest = Groups(tail, *terms).sum();
  if (!rest) return std::nullopt;
  return With_Rest(tail, *rest);
}

}  // namespace quorvex
