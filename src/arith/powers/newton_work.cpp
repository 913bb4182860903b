#include "arith/powers/newton_work.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>

#include "arith/operation/step_options.h"
#include "arith/operation/steps.h"
#include "host/conversions.h"
#include "text/decimal.h"
#include "text/options.h"

namespace quorvex {
namespace {

// Of a magnitude of any size.
double Logarithm(const Step_Number& number) {
  constexpr std::size_t digits_of_floats = 17;
  const Decimal decimal = number.decimal();
  const std::string leading = decimal.digits.substr(0, digits_of_floats);
  const auto power = static_cast<double>(decimal.power_of_ten) +
                     static_cast<double>(decimal.digits.size() - leading.size());
  return std::log(Text_To_Number(leading)) + power * std::numbers::ln10;
}

// A large degree multiplies what a float of a number next to 1 lacks. Estimates have 15 digits.
double Precise_Logarithm(const Step_Number& number) {
  constexpr double near = 0.5;
  constexpr double limit = 15;
  const double logarithm = Logarithm(number);
  if (std::fabs(logarithm) > near) return logarithm;
  return std::log1p(Text_To_Number(Steps(limit).difference(number, Step_Number(1)).text()));
}

// ln(1 + (e^s - 1) / d), or a little less where that is beyond floats.
double Growth(double s, double d) {
  constexpr double largest_power = 700;
  return s > largest_power ? s - std::log(d) : std::log1p(std::expm1(s) / d);
}

// The power takes a product at least for every binary digit of the degree, and what else a round
// does is worth some more.
double Products(double d) {
  constexpr double beside_the_power = 4;
  return beside_the_power + std::fabs(std::log2(d));
}

// Below, w is the logarithm of value^d / radicand, which is 0 at the root. A round takes it to
// w + d ln(1 + (e^-w - 1) / d).

// Degrees above 1: from below the root the first round leaps above it, and from there w sinks by no
// more than -d ln(1 - 1/d) a round, which is about 1. So the leap of a large radicand, from a start
// that is not close, is paid in rounds. Each writes the power out as text, which has w / ln 10
// digits and more, zeros as a rule: half as many in the mean.
Newton_Work Work_Downwards(double w, double d, double log_radicand, double digits) {
  if (w < 0) w += d * Growth(-w, d);
  const double share = (1 - 1 / d) / std::numbers::ln10;
  // A power that has no room is a token, which ends the iteration in the next round.
  if ((w + log_radicand) * share >= maximum_digits) return {};
  constexpr double cost_of_zero = 0.2;  // beside a digit that is multiplied
  const double written = std::max(0.0, (w / 2 + log_radicand) * share);
  return {std::max(0.0, (w - 1) / (-d * std::log1p(-1 / d))),
          digits * Products(d) + cost_of_zero * written};
}

// Degrees below 1: values climb from below, w = -s. As 1 + (e^s - 1) / d is no more than
// e^s (1 + 1/d), s + c with c = ln(1 + 1/d) loses no more than its d-th part a round. And the power
// in every round is a root itself, of the value's reciprocal: once that is none for floats, it
// begins with 1 and takes as many rounds as above. Counted is the second half of the way, with the
// value at its beginning.
Newton_Work Work_Upwards(double s, double d, double log_radicand, double digits) {
  constexpr double beyond_floats = 745;
  constexpr double most_at_once = 2 * std::numbers::ln2;  // -d ln(1 - 1/d) for a degree of 2
  const double half = s / 2;
  if (half <= d) return {};
  const double c = std::log1p(1 / d);
  const double rounds = std::log((half + c) / (d + c)) / -std::log1p(-d);
  const double log_value = (log_radicand - half) / d;
  if (log_value <= beyond_floats) return {rounds, digits * Products(d)};
  return {rounds * (log_value - 1) / most_at_once,
          (digits + log_value / std::numbers::ln10) * Products(d)};
}

// Steps of half a d-th part of the value show in the digits that are compared, of which there is
// one less below 1, and for a minus; otherwise the iteration ends with the first of them.
bool Shows_Steps(double log_degree, double maxSD) {
  constexpr double digits_not_compared = 4;
  return log_degree / std::numbers::ln10 <= maxSD - digits_not_compared;
}

Step_Number Magnitude(Step_Number number) {
  if (number.is_negative()) number.negate();
  return number;
}

// The root is not close to 1 as a rule, which stands for an estimate that floats don't give.
bool Is_Close(const Step_Number& start, const Step_Number& degree) {
  // Fifteen digits of a root are close to it, but for a degree that multiplies what they lack.
  constexpr double short_degree = 13;
  const bool is_whole = !degree.is_in_limbs() || degree.in_limbs().low >= 0;
  return !Is_Equal(start, Step_Number(1)) &&
         Length_Without_Separator(degree) + (is_whole ? 0 : 1) <= short_degree;
}

}  // namespace

Newton_Work Least_Work(const Step_Number& radicand, const Step_Number& degree,
                       const Step_Number& start, const Newton_Limits& limits) {
  if (Is_Close(start, degree)) return {};
  // Beyond these, bounds are what they are there.
  constexpr double log_of_extreme = 650;
  const double log_degree = Logarithm(degree);
  const double d = std::exp(std::clamp(log_degree, -log_of_extreme, log_of_extreme));
  const double log_radicand = Logarithm(Magnitude(radicand));
  const double w = d * Precise_Logarithm(Magnitude(start)) - log_radicand;
  if (d == 1 || (d > 1 && !Shows_Steps(log_degree, limits.maxSD))) return {};
  return d < 1 ? Work_Upwards(-w, d, log_radicand, limits.steps)
               : Work_Downwards(w, d, log_radicand, limits.steps);
}

}  // namespace quorvex
