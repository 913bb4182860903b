#include "arith/powers/newton_root.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "arith/powers/newton_end.h"
#include "arith/powers/root_pair.h"
#include "expects.h"
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

// A value of the iteration; its text is formed where it is looked at.
class Value {
 public:
  explicit Value(Step_Number number) : number_(std::move(number)) {}

  const Step_Number& number() const { return number_; }
  const NumberText& text() const {
    if (!text_) text_ = number_.text();
    return *text_;
  }
  /// Rounded to so many characters.
  const NumberText& rounded(double count) const {
    if (!rounded_) rounded_ = Round_To_Length(text(), count);
    return *rounded_;
  }

 private:
  Step_Number number_;
  mutable std::optional<NumberText> text_;
  mutable std::optional<NumberText> rounded_;
};

// The characters of a value's text.
std::int64_t Length(const Value& value) {
  const Step_Number& number = value.number();
  if (!number.is_in_limbs()) return static_cast<std::int64_t>(Count_Characters(value.text()));
  return Plain_Length(number) + (number.in_limbs().low < 0 ? 1 : 0);
}

// The last ten values, and how often one came back.
class History {
 public:
  /// Compares values by so many characters.
  explicit History(double count) : count_(count) {}

  /// False when values have come back ten times in all.
  bool note(const Value& value) {
    for (const Value& each : values_) repeats_ += is_repeated(each, value) ? 1 : 0;
    if (values_.size() < remembered) {
      values_.push_back(value);
    } else {
      values_[next_] = value;
      next_ = (next_ + 1) % remembered;
    }
    return repeats_ < most_repeats;
  }

  int repeats() const { return repeats_; }

 private:
  bool is_repeated(const Value& a, const Value& b) const {
    return May_Be_Alike(a.number(), b.number(), count_) && a.rounded(count_) == b.rounded(count_);
  }

  static constexpr int most_repeats = 10;
  static constexpr std::size_t remembered = 10;
  double count_;
  std::vector<Value> values_;
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
  void begin_anew() { kept_.reset(); }

  void see(const Value& value, const History& history) {
    if (kept_ && is_same(*kept_, value)) {
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
  static bool is_same(const Value& a, const Value& b) {
    if (!a.number().is_in_limbs() || !b.number().is_in_limbs()) return a.text() == b.text();
    return Is_Equal(a.number(), b.number());
  }

  std::optional<Value> kept_;
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

Value Time_Of_Day() {
  const double time = Current_Platform().clock->time_of_day();
  return Value(Step_Number(Expand_Exponent(Number_To_Text(time))));
}

// One digit more than the value before, and otherwise the same.
bool Only_Grew(const Value& value, const Value& before, double maxSD) {
  const std::int64_t length = Length(value);
  return static_cast<double>(length) > maxSD && length == Length(before) + 1 &&
         value.text().starts_with(before.text());
}

class Newton_Iteration {
 public:
  Newton_Iteration(Step_Number radicand, Step_Number degree, const Steps& steps, Power_Step power)
      : radicand_(std::move(radicand)),
        degree_(std::move(degree)),
        degree_less_one_(steps.difference(degree_, Step_Number(1))),
        steps_(steps),
        power_(power) {}

  /// ((degree - 1) value + radicand / value^(degree - 1)) / degree, or the token of a step.
  Step_Number next(const Step_Number& value) const {
    const Step_Number multiple = step(&Steps::product, degree_less_one_, value);
    const Step_Number quotient = step(&Steps::quotient, radicand_, raise(value));
    return step(&Steps::quotient, step(&Steps::sum, multiple, quotient), degree_);
  }

 private:
  using Operation = Step_Number (Steps::*)(Step_Number, const Step_Number&) const;

  // Tokens go through the steps as they are; but the one that comes first is the result.
  Step_Number step(Operation operation, const Step_Number& a, const Step_Number& b) const {
    if (a.is_token()) return a;
    if (b.is_token()) return b;
    return (steps_.*operation)(a, b);
  }

  Step_Number raise(const Step_Number& value) const {
    return value.is_token() ? value : power_(value, degree_less_one_, steps_);
  }

  Step_Number radicand_;
  Step_Number degree_;
  Step_Number degree_less_one_;
  Steps steps_;
  Power_Step power_;
};

}  // namespace

Decimal Newton_Root(const Step_Number& radicand, const Step_Number& degree, Step_Number start,
                    const Newton_Limits& limits, Power_Step power) {
  Expects(!degree.is_negative());
  Refuse_Endless_Way(Least_Work(radicand, degree, start, limits));
  if (auto end = Newton_End(radicand, degree, start, limits)) return *std::move(end);
  const Newton_Iteration iteration(radicand, degree, Steps(limits.steps), power);
  const double compared = limits.maxSD - 1;
  History history(compared);
  Circle_Watch circles;
  Value value{std::move(start)};
  for (;;) {
    Yield();
    const Value before = std::move(value);
    value = Value(iteration.next(before.number()));
    if (value.number().is_token()) return Decimal_Token(value.text());
    if (Is_Equal(value.number(), Step_Number(0))) {
      value = Time_Of_Day();
      circles.begin_anew();
    }
    if (Only_Grew(value, before, limits.maxSD)) return Read_Decimal(before.number());
    if (!history.note(value)) return Decimal_Token(num_token);
    if (May_Be_Alike(value.number(), before.number(), compared) &&
        Is_Equal(value.rounded(compared), before.rounded(compared))) {
      return Read_Decimal(before.number());
    }
    circles.see(value, history);
  }
}

}  // namespace quorvex
