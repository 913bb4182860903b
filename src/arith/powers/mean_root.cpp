#include "arith/powers/mean_root.h"

#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "arith/operation/steps.h"
#include "arith/powers/root_neighbourhood.h"
#include "arith/powers/root_pair.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/guard_digits.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int stalls_before_end = 3;
constexpr int differences_before_stalls = 2;

// Whether the difference is less than one unit of the last of so many digits of the value.
bool Is_Below_Digits(const Step_Number& difference, const Step_Number& value, double count) {
  return difference.is_zero() ||
         static_cast<double>(difference.leading_power()) <=
             static_cast<double>(value.is_zero() ? -1 : value.leading_power()) - Nearest(count);
}

// Counts how often the difference of the two has not become less.
class Stalls {
 public:
  Stalls() = default;
  /// After so many rounds, each of which had a smaller difference than the one before.
  explicit Stalls(int rounds) : seen_(rounds) {}

  /// The count, if the round stalls; otherwise 0.
  int see(const Step_Number& difference) {
    ++seen_;
    const bool stalls =
        last_ && seen_ > differences_before_stalls && Is_At_Least(difference, *last_);
    last_ = difference;
    return stalls ? ++count_ : 0;
  }

  /// After so many more rounds, each of which had a smaller difference than the one before.
  void pass(int rounds, const Step_Number& last_difference) {
    seen_ += rounds;
    last_ = last_difference;
  }

 private:
  int seen_ = 0;
  int count_ = 0;
  std::optional<Step_Number> last_;
};

// The two values of a round.
struct Round_Values {
  Step_Number quotient;
  Step_Number mean;
};

Step_Number Distance(const Step_Number& a, const Step_Number& b, const Steps& steps) {
  Step_Number difference = steps.difference(a, b);
  if (difference.is_negative()) difference.negate();
  return difference;
}

bool May_Settle(const Round_Values& values, double maxSD) {
  return !values.quotient.is_negative() && May_Be_Alike(values.quotient, values.mean, maxSD);
}

Decimal Token_Of_Round(const Round_Values& values) {
  return Decimal_Token((values.quotient.is_token() ? values.quotient : values.mean).text());
}

// Whether the square is the radicand: nothing is left to be found then. Estimates are short.
bool Is_Square_Of(const Step_Number& radicand, const Step_Number& estimate) {
  constexpr std::size_t most_limbs = 4;
  if (!radicand.is_in_limbs() || !estimate.is_in_limbs()) return false;
  const limbs::Number& root = estimate.in_limbs();
  if (radicand.in_limbs().count() > most_limbs || root.count() > most_limbs / 2) return false;
  limbs::Number square;
  limbs::Multiply(root, root, most_limbs * limbs::digits, square);
  return std::is_eq(limbs::Compare_Magnitudes(square, radicand.in_limbs()));
}

// The root of an even power of ten, which the iteration always comes to: a value next to it, s + N
// u with the unit u of its last digit, has the quotient s - N u, of one whole digit less or of
// nines, and so doesn't agree with it; their mean is s, and so is the quotient of that.
std::optional<Decimal> Root_Of_Power_Of_Ten(const Step_Number& radicand) {
  if (!radicand.is_in_limbs() || radicand.is_zero() || radicand.is_negative()) return std::nullopt;
  const limbs::Number& number = radicand.in_limbs();
  const std::int64_t power = radicand.leading_power();
  if (number.count() > 1 || power % 2 != 0) return std::nullopt;
  const limbs::Limb first = number.data()[0];
  if (first != limbs::Ten_To(limbs::Count_Digits(first) - 1)) return std::nullopt;
  return Decimal{"1", power / 2};
}

bool Is_Same(const Decimal& a, const Decimal& b) {
  return a.digits == b.digits && a.power_of_ten == b.power_of_ten && a.negative == b.negative;
}

class Mean_Iteration {
 public:
  Mean_Iteration(const Step_Number& radicand, const Step_Number& start, double maxSD)
      : radicand_(radicand), maxSD_(maxSD), steps_(With_Guard_Digit(maxSD)) {
    if (Root_Neighbourhood::Is_For(steps_.limit()) && !Is_Square_Of(radicand, start)) {
      near_ = Root_Neighbourhood::Of(radicand, steps_.limit());
    }
  }

  Decimal root(const Step_Number& start) const {
    if (near_) {
      if (auto end = near_->end(start, maxSD_)) return *std::move(end);
      if (const auto later = near_->later_values(start)) {
        if (auto root = common_root(*later)) return *std::move(root);
      }
    }
    return iterate(start, Stalls());
  }

 private:
  // What all of the values lead to.
  std::optional<Decimal> common_root(const Later_Values& later) const {
    std::optional<Decimal> common;
    for (const Step_Number& value : later.values) {
      Decimal root = iterate(value, Stalls(later.rounds));
      if (common && !Is_Same(*common, root)) return std::nullopt;
      common = std::move(root);
    }
    return common;
  }

  Decimal iterate(const Step_Number& start, Stalls stalls) const;
  bool take_round(Round_Values& values) const;
  bool is_far_above_root(const Step_Number& mean) const;
  void halve_while_far(Step_Number& mean, Stalls& stalls) const;

  const Step_Number& radicand_;
  double maxSD_;
  Steps steps_;
  std::optional<Root_Neighbourhood> near_;
};

// False where a step is a token.
bool Mean_Iteration::take_round(Round_Values& values) const {
  if (near_) {
    if (auto quotient = near_->quotient(values.mean)) {
      values.quotient = *std::move(quotient);
      values.mean = near_->mean(values.mean, values.quotient);
      return true;
    }
  }
  values.quotient = steps_.quotient(radicand_, values.mean);
  if (values.quotient.is_token()) return false;
  steps_.add(values.mean, values.quotient);
  if (values.mean.is_token()) return false;
  steps_.divide(values.mean, Step_Number(2));
  return !values.mean.is_token();
}

// Whether the quotient is less than a thousandth of the last digit that a sum with the value keeps.
bool Mean_Iteration::is_far_above_root(const Step_Number& mean) const {
  constexpr double beside_digits = 6;
  return static_cast<double>(radicand_.leading_power()) + steps_.limit() + beside_digits <=
         2 * static_cast<double>(mean.leading_power());
}

// Next to such a value, which is a mean itself and so not longer than a sum, the quotient is
// nothing: the next mean is the half, and the difference of quotient and mean is the mean. Neither
// do the two agree, since what the mean begins with are zeros of the quotient, nor does a round
// stall.
void Mean_Iteration::halve_while_far(Step_Number& mean, Stalls& stalls) const {
  constexpr int rounds_between_yields = 16;
  const bool is_in_limbs = radicand_.is_in_limbs() && mean.is_in_limbs();
  const bool is_whole_limit = steps_.limit() >= 1 && std::trunc(steps_.limit()) == steps_.limit();
  if (!is_in_limbs || !is_whole_limit || mean.is_negative()) return;
  const Step_Number two(2);
  while (is_far_above_root(mean)) {
    Yield();
    int rounds = 0;
    for (; rounds < rounds_between_yields && is_far_above_root(mean); ++rounds) {
      steps_.divide(mean, two);
    }
    stalls.pass(rounds, mean);
  }
}

Decimal Mean_Iteration::iterate(const Step_Number& start, Stalls stalls) const {
  Round_Values values{Step_Number(0), start};
  for (;;) {
    Yield();
    if (!take_round(values)) return Token_Of_Round(values);
    if (May_Settle(values, maxSD_)) {
      Root_Pair pair(values.quotient, values.mean, maxSD_);
      if (pair.settle()) return std::move(pair).root();
      // Limits below 0 and next to the ceiling can leave nothing.
      if (pair.is_empty()) {
        throw Run_Time_Failure(Failure_Number::type_mismatch, "A value of a root has no digits.");
      }
    }
    const Step_Number difference = Distance(values.quotient, values.mean, steps_);
    if (difference.is_token()) return Decimal_Token(difference.text());
    const int count = stalls.see(difference);
    if (count == 0) halve_while_far(values.mean, stalls);
    if (count < stalls_before_end) continue;
    // Neighbours that never meet have the root between them.
    if (Is_Below_Digits(difference, values.quotient, maxSD_ - 1)) {
      Root_Pair pair(values.quotient, values.mean, maxSD_);
      pair.part();
      return std::move(pair).root();
    }
    if (count > stalls_before_end) return Decimal_Token(num_token);
  }
}

}  // namespace

Decimal Mean_Root(const Step_Number& radicand, const Step_Number& start, double maxSD) {
  if (Root_Neighbourhood::Is_For(With_Guard_Digit(maxSD))) {
    if (auto root = Root_Of_Power_Of_Ten(radicand)) return *std::move(root);
  }
  return Mean_Iteration(radicand, start, maxSD).root(start);
}

}  // namespace quorvex
