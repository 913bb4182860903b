// The Poisson distribution against its definition, step by step and as a whole.
#include "elementary/poisson.h"

#include <gtest/gtest.h>

#include <string>

#include "arith/do_operation.h"
#include "arith/operation/four_operations.h"
#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/factorial.h"
#include "host/conversions.h"
#include "support/cells.h"
#include "support/default_limit.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/real_number.h"
#include "support/surroundings.h"
#include "support/text_steps.h"

namespace quorvex {
namespace {

NumberText Poisson(int target, const NumberText& average, bool cumulative, double limit) {
  return Poisson_Function(target, average, cumulative, Missing, limit, Missing);
}

NumberText Term(int k, const NumberText& average, double limit) {
  const NumberText e = To_Text(E_Digits(limit));
  const NumberText exp_term = Text_Steps{limit}.power(e, "-" + average);
  const NumberText power = Text_Steps{limit}.power(average, std::to_string(k));
  return Intermediate(operation::divide, Intermediate(operation::multiply, exp_term, power, limit),
                      Fact_Function(k, {}), limit);
}

// As a result shows it.
NumberText Formatted(const NumberText& number, double limit) {
  const HostValue shown = limit - 1;
  return Do_Operation(operation::add, number, 0, {.maximum_significant_digits = shown});
}

std::string Random_Average(Random_Numbers& random) {
  std::string average = std::to_string(1 + random.below(30));
  if (random.one_in(2)) average += "." + std::to_string(1 + random.below(99));
  return average;
}

// No root is taken for an average whose e to it can't be told from 1, and no zeros are written
// between the terms of a great one. Both change no digit.
TEST(Poisson, OfTinyAndGreatAveragesIsItsDefinitionToo) {
  for (const double limit : {1.0, 2.0, 3.0, 7.0, 18.0, 40.0}) {
    for (const int more : {8, 9, 10, 11, 12, 13, 14, 30}) {
      const std::size_t zeros =
          static_cast<std::size_t>(limit) + static_cast<std::size_t>(more) - 1;
      const NumberText average = "0." + NumberText(zeros, '0') + "95";
      for (const int target : {0, 1, 3}) {
        ASSERT_EQ(Poisson(target, average, false, limit),
                  Formatted(Term(target, average, limit), limit))
            << target << " of " << average << " at " << limit;
      }
    }
  }
  for (const char* average : {"2302500", "2302700", "3000000.5"}) {
    NumberText sum = "0";
    for (int k = 0; k <= 3; ++k) {
      const NumberText term = Term(k, average, 20);
      EXPECT_EQ(Poisson(k, average, false, 20), Formatted(term, 20)) << k << " of " << average;
      sum = Intermediate(operation::add, sum, term, 20);
      EXPECT_EQ(Poisson(k, average, true, 20), Formatted(sum, 20)) << k << " of " << average;
    }
  }
}

// Few characters that ask for much.
TEST(Poisson, OfAveragesWithHugeExponentsIsQuickOrFailsForMemory) {
  EXPECT_EQ(Poisson(0, "1E-3000", false, 100), "1");
  EXPECT_EQ(Poisson(0, "1E-100000", true, 100), "1");
  EXPECT_EQ(Poisson(0, "1E-50000", true, 40000), "#NUM!");  // more digits than e is stored with
  EXPECT_EQ(Failure_Of([&] { Poisson(5, "1E+100000", true, 100); }), Failure_Number::out_of_memory);
  const Memory_Guard little(100'000'000);
  for (const bool cumulative : {false, true}) {
    const auto failure = Failure_Of([&] { Poisson(5, "1E+9", cumulative, 100); });
    EXPECT_EQ(failure, Failure_Number::out_of_memory);
  }
}

TEST(Poisson, TakesEveryTermAnewAndAddsThemUp) {
  Random_Numbers random(95);
  for (int round = 0; round < 40; ++round) {
    const std::string average = Random_Average(random);
    const int target = static_cast<int>(random.below(90));
    const auto limit = static_cast<double>(3 + random.below(random.one_in(4) ? 150 : 30));
    ASSERT_EQ(Poisson(target, average, false, limit),
              Formatted(Term(target, average, limit), limit))
        << target << " of " << average << " at " << limit;
    NumberText sum = "0";
    for (int k = 0; k <= target; ++k) {
      sum = Intermediate(operation::add, sum, Term(k, average, limit), limit);
    }
    ASSERT_EQ(Poisson(target, average, true, limit), Formatted(sum, limit))
        << target << " of " << average << " at " << limit;
  }
}

// Up to the default limit of factorials all digits of a term are right but the last ones.
TEST(Poisson, IsRight) {
  Random_Numbers random(96);
  for (int round = 0; round < 60; ++round) {
    const std::string average = std::to_string(1 + random.below(30));
    const auto k = static_cast<int>(random.below(100));
    const long limit = 10 + static_cast<long>(random.below(80));
    Real_Number exact(average, 600);
    Real_Number other(600);
    mpfr_pow_si(other.value(), exact.value(), k, MPFR_RNDN);
    mpfr_neg(exact.value(), exact.value(), MPFR_RNDN);
    mpfr_exp(exact.value(), exact.value(), MPFR_RNDN);
    mpfr_mul(exact.value(), exact.value(), other.value(), MPFR_RNDN);
    mpfr_fac_ui(other.value(), static_cast<unsigned long>(k), MPFR_RNDN);
    mpfr_div(exact.value(), exact.value(), other.value(), MPFR_RNDN);
    // e is cut and not rounded, by less than a unit of its last place, once for each power of it.
    ASSERT_LT(exact.distance(Poisson(k, average, false, static_cast<double>(limit)), -limit), 40)
        << k << " of " << average << " at " << limit;
  }
}

TEST(Poisson, TakesFactorialsAtTheDefaultLimit) {
  const NumberText usual = Poisson(80, "70", false, 50);
  const Default_Limit five(5);
  const NumberText few = Poisson(80, "70", false, 50);
  EXPECT_NE(few, usual);
  EXPECT_EQ(few.substr(0, 6), usual.substr(0, 6));
}

TEST(Poisson, OfCountsBeyondFactorialsIsATokenAtOnce) {
  // Nothing more than e to the power -average, which every term has.
  const auto yields_of_one = Yields_Of([] { Poisson(0, "1", false, 10); });
  for (const bool cumulative : {false, true}) {
    for (const int target : {9274, 2000000000}) {
      for (const double limit : {2.0, 10.0}) {
        NumberText result;
        const auto yields = Yields_Of([&] { result = Poisson(target, "1", cumulative, limit); });
        EXPECT_EQ(result, "#NUM!") << target << " at " << limit;
        EXPECT_LE(yields, yields_of_one) << target << " at " << limit;
      }
    }
  }
}

TEST(Poisson, CountsThatComeToRestFail) {
  EXPECT_EQ(Failure_Of([] { Poisson(100, "1", true, 0); }), Failure_Number::too_complex);
  EXPECT_EQ(Failure_Of([] { Poisson(99, "1", true, 0); }), std::nullopt);
  EXPECT_EQ(Failure_Of([] { Poisson(10, "1", true, -1); }), Failure_Number::too_complex);
}

TEST(Poisson, ReadsCellsAsWhatStandsInThem) {
  const auto cell = [](const HostValue& value) { return Range_Of_Cells(1, {value}); };
  EXPECT_EQ(Poisson_Function(cell("2"), cell(3), cell(true), cell(false), cell(20), cell(true)),
            Poisson(2, "3", true, 20));
  EXPECT_EQ(Poisson_Function(2, 3, cell(1), Missing, Missing, Missing), "#VALUE!");
  EXPECT_EQ(Poisson_Function(2, 3, true, Missing, cell(HostValue::Empty()), Missing),
            Poisson(2, "3", true, 100));
}

TEST(Poisson, CanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Poisson(20, "1", true, 20); }), Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
