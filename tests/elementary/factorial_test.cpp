// Factorials against exact ones, and against their own definition product by product.
#include "elementary/factorial.h"

#include <gtest/gtest.h>

#include <string>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "support/default_limit.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/whole_number.h"
#include "support/without_libraries.h"
#include "text/close_number.h"

namespace quorvex {
namespace {

constexpr double no_limit = 40000;

std::string Exact_Factorial(unsigned long number, bool every_other) {
  return Whole_Number::Factorial(number, every_other).text();
}

NumberText Factorial(const HostValue& number, double limit) {
  const HostValue digits = limit;
  return Fact_Function(number, {.maximum_significant_digits = digits});
}

NumberText Double_Factorial(const HostValue& number, double limit) {
  const HostValue digits = limit;
  return FactDouble_Function(number, {.maximum_significant_digits = digits});
}

// Each product cut, in the order of the definition; and the last one once more by the formatting.
NumberText By_Definition(int first, int last, int step, double limit) {
  NumberText product = "1";
  for (int factor = first; step > 0 ? factor <= last : factor >= last; factor += step) {
    product = Intermediate(operation::multiply, product, std::to_string(factor), limit);
  }
  const HostValue digits = limit;
  return Close_Number({product}, {.maximum_significant_digits = digits});
}

TEST(Factorials, AreExactWhereTheLimitCutsNothing) {
  for (const unsigned long number : {0UL, 1UL, 2UL, 3UL, 4UL, 5UL, 8UL, 9UL, 20UL, 21UL, 100UL,
                                     1000UL, 1001UL, 9272UL, 9273UL, 17233UL, 17234UL}) {
    if (number <= 9273) {
      EXPECT_EQ(Factorial(number, no_limit), Exact_Factorial(number, false)) << number;
    }
    EXPECT_EQ(Double_Factorial(number, no_limit), Exact_Factorial(number, true)) << number;
  }
}

TEST(Factorials, CutEveryProductAtTheLimit) {
  Random_Numbers random(91);
  for (int round = 0; round < 150; ++round) {
    const int number = static_cast<int>(1 + random.below(random.one_in(5) ? 600 : 60));
    const double limit = static_cast<double>(random.below(random.one_in(4) ? 300 : 30)) +
                         (random.one_in(5) ? 0.5 : 0.0);
    ASSERT_EQ(Factorial(number, limit), By_Definition(1, number, 1, limit))
        << number << " at " << limit;
    ASSERT_EQ(Double_Factorial(number, limit), By_Definition(number, 1, -2, limit))
        << number << " at " << limit;
  }
}

TEST(Factorials, OfOneNumberAfterTheOtherAreTheSame) {
  for (const double digits : {3.0, 100.0}) {
    const Default_Limit limit(digits);
    Running_Factorial factorials;
    for (int number = 0; number < 120; ++number) {
      EXPECT_EQ(factorials.next().text(), Fact_Function(number, {})) << number << " at " << digits;
    }
  }
}

TEST(Factorials, CanBeBrokenOff) {
  const Interruption_Guard guard;
  for (const double limit : {5.0, no_limit}) {
    EXPECT_EQ(Failure_Of([=] { Factorial(500, limit); }), Failure_Number::interrupted) << limit;
    EXPECT_EQ(Failure_Of([=] { Double_Factorial(500, limit); }), Failure_Number::interrupted)
        << limit;
  }
}

TEST(Factorials, FailWhereProductsDo) {
  const Without_Libraries guard;
  EXPECT_EQ(Factorial(3, 50), "#VALUE!");
  EXPECT_EQ(Double_Factorial(500, 10), "#VALUE!");
  EXPECT_EQ(Factorial(0, 50), "1");
}

}  // namespace
}  // namespace quorvex
