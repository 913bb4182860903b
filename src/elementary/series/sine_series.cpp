#include "elementary/series/sine_series.h"

#include <cstdint>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/powers/power_function.h"
#include "elementary/series/series.h"
#include "elementary/series/shortened_series.h"
#include "elementary/steps/step_digits.h"
#include "host/conversions.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

// Powers of ten that a float has room for beyond doubt.
constexpr std::int64_t float_powers = 300;

bool Is_Zero_As_Float(const Step_Number& x) {
  const bool is_beyond_doubt = x.is_in_limbs() && !x.is_zero() &&
                               x.leading_power() > -float_powers &&
                               x.leading_power() < float_powers;
  return !is_beyond_doubt && To_Number(x.text()) == 0;
}

constexpr Divisor_Of_Counter factorial_step = [](std::uint64_t k) { return k * (k - 1); };

constexpr Series_Rule rule{.stride = 2,
                           .power_divisor = factorial_step,
                           .term_divisor = nullptr,
                           .ends_by_power = true,
                           .alternates = true};

// The terms of a sine by its argument, which are those of the cosine divided once more.
constexpr Series_Rule rule_of_divided{.stride = 2,
                                      .power_divisor = factorial_step,
                                      .term_divisor = [](std::uint64_t k) { return k + 1; },
                                      .ends_by_power = true,
                                      .alternates = true};

// From the first that is not 0 to the last.
std::int64_t Significant_Digits(const limbs::Number& number) {
  std::int64_t last = number.low * static_cast<std::int64_t>(limbs::digits);
  for (limbs::Limb limb = *number.data(); limb % 10 == 0; limb /= 10) ++last;
  return limbs::Leading_Power(number) - last + 1;
}

// The second power. Of a number with no more digits than products keep, a power forms all digits
// and rounds them once, as a product does.
Step_Number Square_Of(const Step_Number& x, const Steps& steps) {
  const auto digits = Whole_Digits_Of(steps.limit());
  const bool is_product =
      digits && x.is_in_limbs() && !x.is_zero() && Can_Multiply() &&
      static_cast<double>(Significant_Digits(x.in_limbs())) <= Digits_Of_Result(steps.limit());
  return is_product ? steps.product(x, x) : Power(x, Step_Number(2), steps);
}

// The terms of sine or cosine, by what the first one is and how far the counter has come with it.
class Sine_Terms {
 public:
  Sine_Terms(Step_Number first, double k, const Step_Number& x, const Steps& steps)
      : term_(std::move(first)),
        k_(k, steps),
        square_(Square_Of(x, steps)),
        steps_(steps),
        end_(steps.limit()) {}

  const Step_Number& term() const { return term_; }
  const Series_Counter& k() const { return k_; }
  Shortened_Series shortened(const Series_Rule& by = rule) const {
    return {by, square_, steps_.limit(), end_.last_power()};
  }
  bool is_at_end() const { return end_.is_reached(term_); }

  void step() {
    k_.step();
    steps_.multiply(term_, square_);
    steps_.divide(term_, k_.product_with_the_one_before());
    term_.negate();
  }

 private:
  Step_Number term_;
  Series_Counter k_;
  Step_Number square_;
  Steps steps_;
  Series_End end_;
};

Step_Number Sum_Of(Sine_Terms terms, const Steps& steps) {
  Step_Number sum = terms.term();
  Shortened_Series shortened = terms.shortened();
  for (;;) {
    terms.step();
    steps.add(sum, terms.term());
    if (terms.is_at_end()) break;
    if (auto rest = shortened.sum_from({terms.term(), sum, terms.k().whole()})) {
      return *std::move(rest);
    }
  }
  return sum;
}

}  // namespace

Step_Number Sin_Series(const Step_Number& x, const Steps& steps) {
  return Is_Plain_Zero(x) ? x : Sum_Of({x, 1, x, steps}, steps);
}

Step_Number Cos_Series(const Step_Number& x, const Steps& steps) {
  const Step_Number one(1);
  return Is_Zero_As_Float(x) ? one : Sum_Of({one, 0, x, steps}, steps);
}

Step_Number Tan_Series(const Step_Number& x, const Steps& steps) {
  Step_Number one(1);
  if (Is_Zero_As_Float(x)) return one;
  Sine_Terms terms(one, 0, x, steps);
  Step_Number cosine = terms.term();
  Step_Number sine_by_x = terms.term();
  Shortened_Series shortened = terms.shortened();
  Shortened_Series shortened_too = terms.shortened(rule_of_divided);
  do {
    terms.step();
    steps.add(cosine, terms.term());
    steps.add(sine_by_x, steps.quotient(terms.term(), terms.k().next()));
    if (terms.is_at_end()) break;
    const Series_State state{terms.term(), cosine, terms.k().whole()};
    const Series_State state_too{terms.term(), sine_by_x, terms.k().whole()};
    if (!shortened.is_ready(state) || !shortened_too.is_ready(state_too)) continue;
    auto rest = shortened.sum_from(state);
    auto rest_too = rest ? shortened_too.sum_from(state_too) : std::nullopt;
    if (!rest_too) continue;
    cosine = *std::move(rest);
    sine_by_x = *std::move(rest_too);
    break;
  } while (true);
  return steps.quotient(steps.product(sine_by_x, x), cosine);
}

}  // namespace quorvex
