#include "elementary/series/term_sizes.h"

#include <cmath>

#include "arith/limbs/limb_number.h"

namespace quorvex {
namespace {

using limbs::Number;

constexpr std::uint64_t most_terms = 1'000'000;
constexpr double too_small = 0.4;  // to change the sum, of its last place

std::uint64_t Divisor_At(Divisor_Of_Counter divisor, std::uint64_t k) {
  return divisor == nullptr ? 1 : divisor(k);
}

// A float with a power of ten of its own.
class Long_Float {
 public:
  explicit Long_Float(const Number& number)
      : mantissa_(Mantissa(number)), power_(limbs::Leading_Power(number)) {}

  Long_Float& operator*=(const Long_Float& other) {
    mantissa_ *= other.mantissa_;
    power_ += other.power_;
    settle();
    return *this;
  }

  Long_Float& operator/=(std::uint64_t divisor) {
    mantissa_ /= static_cast<double>(divisor);
    settle();
    return *this;
  }

  // In units of a power of ten, or any number that is too large for doubt.
  double in_units_of(std::int64_t power) const {
    constexpr double ten = 10;
    if (power_ > power) return ten;
    return mantissa_ * std::pow(ten, static_cast<double>(power_ - power));
  }

 private:
  void settle() {
    while (mantissa_ >= 10) {
      mantissa_ /= 10;
      ++power_;
    }
    while (mantissa_ < 1) {
      mantissa_ *= 10;
      --power_;
    }
  }

  double mantissa_;
  std::int64_t power_;
};

// The power of a series and what is added, term by term.
class Terms_By_Floats {
 public:
  explicit Terms_By_Floats(const Series_Tail& tail)
      : rule_(tail.rule),
        k_(tail.state.k),
        factor_(tail.factor),
        power_(tail.state.power.in_limbs()) {}

  std::uint64_t next_k() const { return k_ + rule_.stride; }

  void step() {
    k_ += rule_.stride;
    power_ *= factor_;
    power_ /= Divisor_At(rule_.power_divisor, k_);
  }

  Long_Float term() const {
    Long_Float term = power_;
    term /= Divisor_At(rule_.term_divisor, k_);
    return term;
  }

  Long_Float what_tells_the_end() const { return rule_.ends_by_power ? power_ : term(); }

 private:
  const Series_Rule& rule_;
  std::uint64_t k_;
  Long_Float factor_;
  Long_Float power_;
};

bool Has_Divisors_Below(const Series_Rule& rule, std::uint64_t k, std::uint64_t end) {
  return Divisor_At(rule.power_divisor, k) < end && Divisor_At(rule.term_divisor, k) < end;
}

double Logarithm_Of(const Number& number) {
  return std::log10(Mantissa(number)) + static_cast<double>(limbs::Leading_Power(number));
}

// The terms of a series whose powers are not divided, by their logarithms to the base ten.
class Terms_By_Logarithms {
 public:
  explicit Terms_By_Logarithms(const Series_Tail& tail)
      : tail_(tail),
        factor_(Logarithm_Of(tail.factor)),
        power_(Logarithm_Of(tail.state.power.in_limbs())) {}

  double power(double count) const { return power_ + count * factor_; }
  double term(double count) const { return power(count) - divisor(count); }
  double what_tells_the_end(double count) const {
    return tail_.rule.ends_by_power ? power(count) : term(count);
  }

  // Near the first one that is below.
  double first_below(double size) const {
    const double by_power = (size - power_) / factor_;
    if (tail_.rule.ends_by_power) return std::ceil(by_power);
    return std::ceil((size + divisor(std::fmax(by_power, 1)) - power_) / factor_);
  }

 private:
  double divisor(double count) const {
    const std::uint64_t k = tail_.state.k + static_cast<std::uint64_t>(count) * tail_.rule.stride;
    return std::log10(static_cast<double>(Divisor_At(tail_.rule.term_divisor, k)));
  }

  const Series_Tail& tail_;
  double factor_;
  double power_;
};

}  // namespace

double Mantissa(const Number& number) {
  const std::size_t last = number.count() - 1;
  const limbs::Limb top = number.data()[last];
  const double below = last > 0 ? static_cast<double>(number.data()[last - 1]) * 1e-18 : 0;
  return (static_cast<double>(top) + below) /
         static_cast<double>(limbs::Ten_To(limbs::Count_Digits(top) - 1));
}

double Upper_Bound(const Number& number, std::int64_t power_of_ten) {
  const std::int64_t power = limbs::Leading_Power(number) + power_of_ten;
  return Mantissa(number) * std::pow(10.0, static_cast<double>(power)) * (1 + float_margin);
}

Error_Of_Steps::Error_Of_Steps(const Series_Tail& tail)
    : rule_(tail.rule),
      k_(tail.state.k),
      factor_(Upper_Bound(tail.factor)),
      size_(Upper_Bound(tail.state.power.in_limbs(), -tail.state.sum.leading_power())) {}

double Error_Of_Steps::next() {
  k_ += rule_.stride;
  size_ *= factor_ / static_cast<double>(Divisor_At(rule_.power_divisor, k_));
  ++steps_;
  if (rule_.power_divisor == nullptr) {
    constexpr double unit_of_quotient = 10;
    return (steps_ / 2 + unit_of_quotient) * size_ /
           static_cast<double>(Divisor_At(rule_.term_divisor, k_));
  }
  constexpr double units_of_leading_digit = 20;  // twice those of digit limit + 2
  return steps_ * size_ * units_of_leading_digit;
}

std::optional<std::uint64_t> Count_Terms(const Series_Tail& tail, std::uint64_t divisor_end) {
  const std::int64_t last_place = -tail.shift();
  Terms_By_Floats terms(tail);
  for (std::uint64_t count = 0; count < most_terms; ++count) {
    if (terms.next_k() > tail.last_k) return count;
    terms.step();
    if (!Has_Divisors_Below(tail.rule, terms.next_k(), divisor_end)) return std::nullopt;
    const double size = terms.what_tells_the_end().in_units_of(tail.last_power + 1);
    if (size >= 1 + float_margin) continue;
    if (size < 1 - float_margin) return count + 1;
    terms.step();
    if (terms.term().in_units_of(last_place) > too_small) return std::nullopt;
    return count + 1;
  }
  return std::nullopt;
}

std::optional<std::uint64_t> Count_Powers(const Series_Tail& tail) {
  const Terms_By_Logarithms terms(tail);
  const auto end = static_cast<double>(tail.last_power + 1);
  double count = std::fmax(terms.first_below(end), 1);
  if (!(count < static_cast<double>(most_terms))) return std::nullopt;
  double size = terms.what_tells_the_end(count);
  double size_before = terms.what_tells_the_end(count - 1);
  while (size >= end) {
    size_before = size;
    size = terms.what_tells_the_end(++count);
  }
  while (count > 1 && size_before < end) {
    size = size_before;
    size_before = terms.what_tells_the_end(--count - 1);
  }

  bool is_in_doubt = size > end - float_margin;
  if (!is_in_doubt && count > 1 && size_before < end + float_margin) {
    is_in_doubt = true;
    --count;
  }
  const std::uint64_t most =
      tail.last_k < tail.state.k ? 0 : (tail.last_k - tail.state.k) / tail.rule.stride;
  if (most < static_cast<std::uint64_t>(count)) return most;
  const auto last_place = -static_cast<double>(tail.shift());
  if (is_in_doubt && terms.term(count + 1) > last_place + std::log10(too_small)) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(count);
}

}  // namespace quorvex
