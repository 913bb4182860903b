#include "arith/powers/newton_root.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

#include "arith/operation/do_operation.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "text/compare_numbers.h"
#include "text/expand_exponent.h"
#include "text/round_to_length.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Fails for what can't be compared, a rounded value that became a token among it.
bool Is_Equal(const NumberText& a, const NumberText& b) {
  const HostValue answer = Compare_Numbers(a, b, true, false);
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A root's value can't be compared.");
  }
  return answer.boolean();
}

// The last ten values, and how often one came back.
class History {
 public:
  History() { values_.fill("x"); }

  /// False when values have come back ten times in all.
  bool note(NumberText value) {
    for (const NumberText& each : values_) repeats_ += each == value ? 1 : 0;
    values_[next_] = std::move(value);
    next_ = (next_ + 1) % values_.size();
    return repeats_ < most_repeats;
  }

  int repeats() const { return repeats_; }

 private:
  static constexpr int most_repeats = 10;
  std::array<NumberText, 10> values_;
  std::size_t next_ = 0;
  int repeats_ = 0;
};

// Sees a circle of values that is too long for the history: each value follows from the one before
// alone, so that a value which comes back does so for ever, and the history counts the same in
// every turn. Where a whole turn adds nothing to its count, nothing will end the iteration.
// (R. P. Brent, An improved Monte Carlo factorization algorithm, BIT 20, 1980: comparing with a
// value kept at each power of two finds every circle.)
class Circle_Watch {
 public:
  void begin_anew() { kept_.clear(); }

  void see(const NumberText& value, const History& history) {
    if (value == kept_) {
      if (has_turned_ && history.repeats() == repeats_) {
        throw Run_Time_Failure(Failure_Number::too_complex,
                               "The values of a root come back in a circle without end.");
      }
      has_turned_ = true;
      repeats_ = history.repeats();
    } else if (++rounds_ >= next_) {
      next_ *= 2;
      kept_ = value;
      has_turned_ = false;
    }
  }

 private:
  NumberText kept_;
  bool has_turned_ = false;
  int repeats_ = 0;
  std::size_t rounds_ = 0;
  std::size_t next_ = 16;
};

// More than two minutes where products are fastest, at some hundred digits, and that for a lower
// bound of the way: nobody waits so long. Shorter ways can be broken off.
constexpr double most_digits = 5e10;

void Refuse_Endless_Way(const Newton_Work& work) {
  if (work.rounds * work.digits <= most_digits) return;
  constexpr double greatest_told = 1e300;
  const NumberText rounds = Number_To_Text(std::floor(std::fmin(work.rounds, greatest_told)));
  throw Run_Time_Failure(Failure_Number::too_complex,
                         "A root would take " + rounds +
                             " rounds of Newton's iteration or more, which nobody waits for.");
}

NumberText Time_Of_Day() {
  return Expand_Exponent(Number_To_Text(Current_Platform().clock->time_of_day()));
}

// One digit more than the value before, and otherwise the same.
bool Only_Grew(const NumberText& value, const NumberText& before, double maxSD) {
  const std::size_t length = Count_Characters(value);
  return static_cast<double>(length) > maxSD && length == Count_Characters(before) + 1 &&
         value.starts_with(before);
}

class Newton_Iteration {
 public:
  Newton_Iteration(const NumberText& radicand, const NumberText& degree, double limit)
      : radicand_(radicand),
        degree_(degree),
        degree_less_one_(Intermediate(operation::subtract, degree, "1", limit)),
        limit_(limit) {}

  /// ((degree - 1) value + radicand / value^(degree - 1)) / degree, or the token of a step.
  NumberText next(const NumberText& value) const {
    const NumberText power = step(operation::power, value, degree_less_one_);
    const NumberText multiple = step(operation::multiply, degree_less_one_, value);
    const NumberText quotient = step(operation::divide, radicand_, power);
    return step(operation::divide, step(operation::add, multiple, quotient), degree_);
  }

 private:
  // Tokens go through the steps as they are; but the one that comes first is the result.
  NumberText step(std::int16_t code, const NumberText& a, const NumberText& b) const {
    if (Has_Token_Mark(a)) return a;
    if (Has_Token_Mark(b)) return b;
    return Intermediate(code, a, b, limit_);
  }

  const NumberText& radicand_;
  const NumberText& degree_;
  NumberText degree_less_one_;
  double limit_;
};

}  // namespace

NumberText Newton_Root(const NumberText& radicand, const NumberText& degree, NumberText start,
                       const Newton_Limits& limits) {
  Refuse_Endless_Way(Least_Work(radicand, degree, start, limits));
  const Newton_Iteration iteration(radicand, degree, limits.steps);
  History history;
  Circle_Watch circles;
  NumberText value = std::move(start);
  for (;;) {
    Yield();
    NumberText before = std::move(value);
    value = iteration.next(before);
    if (Has_Token_Mark(value)) return value;
    if (Is_Equal(value, "0")) {
      value = Time_Of_Day();
      circles.begin_anew();
    }
    if (Only_Grew(value, before, limits.maxSD)) return before;
    const NumberText rounded = Round_To_Length(value, limits.maxSD - 1);
    const NumberText rounded_before = Round_To_Length(before, limits.maxSD - 1);
    if (!history.note(rounded)) return NumberText(num_token);
    if (Is_Equal(rounded, rounded_before)) return before;
    circles.see(value, history);
  }
}

}  // namespace quorvex
