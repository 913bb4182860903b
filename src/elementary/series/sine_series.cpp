#include "elementary/series/sine_series.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include "arith/powers/power_function.h"
#include "elementary/series/series.h"
#include "elementary/series/shortened_series.h"
#include "host/conversions.h"

namespace quorvex {
namespace {

bool Is_Zero_As_Float(const NumberText& x) {
  return To_Number(x) == 0;
}

constexpr Series_Rule rule{.stride = 2,
                           .divisor = [](std::uint64_t k) { return k * (k - 1); },
                           .keeps_power = false,
                           .ends_by_power = true,
                           .alternates = true};

// The terms of sine or cosine, by what the first one is and how far the counter has come with it.
class Sine_Terms {
 public:
  Sine_Terms(std::string_view first, double k, const NumberText& x, double limit)
      : term_(first),
        k_(k, limit),
        square_(Power_Step(x, "2", limit)),
        limit_(limit),
        end_(limit) {}

  const Step_Number& term() const { return term_; }
  const Series_Counter& k() const { return k_; }
  Shortened_Series shortened() const { return {rule, square_, limit_, end_.last_power()}; }
  bool is_at_end() const { return end_.is_reached(term_); }

  void step() {
    k_.step();
    term_.multiply_by(square_, limit_);
    term_.divide_by(k_.product_with_the_one_before(), limit_);
    term_.negate();
  }

 private:
  Step_Number term_;
  Series_Counter k_;
  Step_Number square_;
  double limit_;
  Series_End end_;
};

NumberText Sum_Of(Sine_Terms terms, double limit) {
  Step_Number sum = terms.term();
  Shortened_Series shortened = terms.shortened();
  for (;;) {
    terms.step();
    sum.add(terms.term(), limit);
    if (terms.is_at_end()) break;
    if (auto rest = shortened.sum_from({terms.term(), sum, terms.k().whole()})) return rest->text();
  }
  return sum.text();
}

}  // namespace

NumberText Sin_Series(const NumberText& x, double maxSD) {
  return x == "0" ? x : Sum_Of({x, 1, x, maxSD}, maxSD);
}

NumberText Cos_Series(const NumberText& x, double maxSD) {
  return Is_Zero_As_Float(x) ? "1" : Sum_Of({"1", 0, x, maxSD}, maxSD);
}

NumberText Tan_Series(const NumberText& x, double maxSD) {
  if (Is_Zero_As_Float(x)) return "1";
  Sine_Terms terms("1", 0, x, maxSD);
  Step_Number cosine = terms.term();
  Step_Number sine_by_x = terms.term();
  do {
    terms.step();
    cosine.add(terms.term(), maxSD);
    sine_by_x.add(Quotient(terms.term(), terms.k().next(), maxSD), maxSD);
  } while (!terms.is_at_end());
  return Quotient(Product(sine_by_x, Step_Number(x), maxSD), cosine, maxSD).text();
}

}  // namespace quorvex
