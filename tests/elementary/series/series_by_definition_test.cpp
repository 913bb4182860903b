// The series digit for digit as chains of plain operations give them, in which nothing is shortened
// and nothing left out.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "arith/do_operation.h"
#include "elementary/constants.h"
#include "elementary/exponential.h"
#include "elementary/logarithm.h"
#include "elementary/series/arc_tangent_series.h"
#include "elementary/series/sine_series.h"
#include "host/conversions.h"
#include "support/random_numbers.h"
#include "support/text_steps.h"
#include "text/compare_numbers.h"

namespace quorvex {
namespace {

NumberText Result(const NumberText& value, double digits) {
  return Do_Operation(operation::add, value, 0, {.maximum_significant_digits = digits});
}

NumberText Opposite(const NumberText& number) {
  if (number == "0") return number;
  return number.starts_with('-') ? number.substr(1) : "-" + number;
}

// The power of ten of a term's first digit, for which a minus is a digit before the separator.
long Power_As_Text(const NumberText& term) {
  const auto separator = term.find('.');
  if (term.starts_with("0.")) return 1 - static_cast<long>(term.find_first_not_of('0', 2));
  if (term == "0") return -1;
  return static_cast<long>(separator == NumberText::npos ? term.size() : separator) - 1;
}

NumberText Logarithm(const NumberText& number, int limit) {
  const Text_Steps chain{static_cast<double>(limit)};
  const int n =
      static_cast<int>(std::floor(std::log(To_Number(HostValue(number))) / std::log(2.0)));
  const NumberText power = chain.power("2", std::to_string(std::abs(n)));
  const NumberText y = n < 0 ? chain.product(number, power) : chain.quotient(number, power);
  NumberText term = chain.quotient(chain.sum(y, "-1"), chain.sum(y, "1"));
  const NumberText square = chain.product(term, term);
  NumberText sum = term;
  for (int k = 3; k <= 5 * limit; k += 2) {
    term = chain.product(term, square);
    const NumberText added = chain.quotient(term, std::to_string(k));
    sum = chain.sum(sum, added);
    if (Power_As_Text(added) < -limit) break;
  }
  const NumberText shift =
      chain.product(std::to_string(n), To_Text(Ln2_Digits(static_cast<double>(limit))));
  return Result(chain.sum(chain.product("2", sum), shift), limit);
}

NumberText Exponential(const NumberText& number, int digits) {
  const int limit = digits + 10;
  const Text_Steps chain{static_cast<double>(limit)};
  const bool is_negative = number.starts_with('-');
  const NumberText magnitude = is_negative ? number.substr(1) : number;
  const NumberText ln2 = To_Text(Ln2_Digits(chain.limit));
  const int n =
      static_cast<int>(std::floor(To_Number(HostValue(magnitude)) / To_Number(HostValue(ln2))));
  NumberText rest = chain.sum(magnitude, Opposite(chain.product(std::to_string(n), ln2)));
  int halvings = 0;
  for (; !Is_True(Compare_Numbers("0.1", rest, false, true)); ++halvings) {
    rest = chain.quotient(rest, "2");
  }
  NumberText sum = chain.sum("1", rest);
  NumberText term = rest;
  for (int k = 2; k <= 5 * limit; ++k) {
    term = chain.product(term, chain.quotient(rest, std::to_string(k)));
    sum = chain.sum(sum, term);
    if (Power_As_Text(term) < -limit) break;
  }
  for (; halvings > 0; --halvings) sum = chain.product(sum, sum);
  if (n > 0) sum = chain.product(sum, chain.power("2", std::to_string(n)));
  if (is_negative) sum = chain.quotient("1", sum);
  return Result(chain.product("1", sum), digits);
}

NumberText Sine(const NumberText& x, int limit) {
  const Text_Steps chain{static_cast<double>(limit)};
  const NumberText square = chain.power(x, "2");
  NumberText term = x;
  NumberText sum = x;
  for (int k = 3;; k += 2) {
    const NumberText divisor = chain.product(std::to_string(k), std::to_string(k - 1));
    term = Opposite(chain.quotient(chain.product(term, square), divisor));
    sum = chain.sum(sum, term);
    if (Power_As_Text(term.starts_with('-') ? term.substr(1) : term) < -limit) return sum;
  }
}

NumberText Arc_Tangent(const NumberText& x, int limit) {
  const Text_Steps chain{static_cast<double>(limit)};
  const NumberText square = chain.product(x, x);
  NumberText power = x;
  NumberText sum = x;
  for (int k = 3;; k += 2) {
    power = Opposite(chain.product(power, square));
    sum = chain.sum(sum, chain.quotient(power, std::to_string(k)));
    if (Power_As_Text(power.starts_with('-') ? power.substr(1) : power) < -limit) return sum;
  }
}

TEST(SeriesByDefinition, Logarithms) {
  Random_Numbers random(20);
  for (int round = 0; round < 150; ++round) {
    const NumberText number = random.positive();
    const int limit = static_cast<int>(random.limit(2, 201));
    ASSERT_EQ(Ln_Function(number, Missing, limit), Logarithm(number, limit))
        << number << " at " << limit;
  }
}

TEST(SeriesByDefinition, Exponentials) {
  Random_Numbers random(21);
  for (int round = 0; round < 150; ++round) {
    const NumberText number = (random.one_in(2) ? "-" : "") + std::to_string(random.below(400)) +
                              "." + random.digits(random.below(40)) + "7";
    const int limit = static_cast<int>(random.limit(2, 201));
    ASSERT_EQ(Exp_Function(number, Missing, limit), Exponential(number, limit))
        << number << " at " << limit;
  }
}

TEST(SeriesByDefinition, SinesAndArcTangents) {
  Random_Numbers random(22);
  for (int round = 0; round < 150; ++round) {
    const NumberText number = NumberText(random.one_in(2) ? "-" : "") + "0." +
                              random.one_of("0123") + random.digits(random.below(60)) + "9";
    const int limit = static_cast<int>(random.limit(2, 201));
    const Step_Number x(number);
    const Steps steps(limit);
    ASSERT_EQ(Sin_Series(x, steps).text(), Sine(number, limit)) << number << " at " << limit;
    ASSERT_EQ(ATan_Series(x, steps).text(), Arc_Tangent(number, limit))
        << number << " at " << limit;
  }
}

}  // namespace
}  // namespace quorvex
