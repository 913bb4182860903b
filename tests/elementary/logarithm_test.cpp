// Logarithms and the exponential against an independent library, to the digits that their working
// precisions leave.
#include "elementary/logarithm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <string>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "arith/powers/power_function.h"
#include "elementary/constants.h"
#include "elementary/exponential.h"
#include "host/conversions.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/real_number.h"
#include "support/surroundings.h"
#include "support/without_libraries.h"
#include "text/round_to_sd.h"

namespace quorvex {
namespace {

NumberText Ln(const NumberText& number, double limit) {
  return Ln_Function(number, Missing, limit);
}

NumberText Exp(const NumberText& number, double limit) {
  return Exp_Function(number, Missing, limit);
}

NumberText Log(const NumberText& number, const HostValue& base, double limit) {
  return Log_Function(number, base, Missing, limit);
}

mpfr_prec_t Bits(long limit) {
  return 4 * limit + 600;
}

// The powers of two in a number.
double Halvings(const Real_Number& logarithm) {
  return std::fabs(logarithm.number()) / std::log(2.0) + 1;
}

// What can be wrong in a natural logarithm at a limit, in units of its second last place kept (ten
// to the -limit - 1): ln 2 is cut one place earlier than its digits count, since its "0" is one,
// and so is wrong by up to 100, once for each power of two; so is the power itself, by 1; and each
// term, of which there is about one a digit, by less than 2.
double Natural_Bound(const Real_Number& logarithm, long limit) {
  return 110 * Halvings(logarithm) + 2.0 * static_cast<double>(limit) + 20;
}

TEST(NaturalLogarithm, IsRightButForWhatItsStepsLose) {
  Random_Numbers random(81);
  for (int round = 0; round < 600; ++round) {
    const std::string number = random.positive();
    const auto limit = static_cast<long>(random.limit(5, 500));
    Real_Number exact(number, Bits(limit));
    mpfr_log(exact.value(), exact.value(), MPFR_RNDN);
    const NumberText result = Ln(number, static_cast<double>(limit));
    ASSERT_LT(exact.distance(result, -limit - 1), Natural_Bound(exact, limit))
        << number << " at " << limit << ": " << result;
  }
}

// With ten guard digits only the last rounding shows, by the first dropped digit: half a unit of
// the last of the limit + 2 digits, and a tenth for the guard digits that squaring uses up.
TEST(Exponential, IsRightToTheLastPlace) {
  Random_Numbers random(82);
  for (int round = 0; round < 600; ++round) {
    std::string number = std::to_string(random.below(random.one_in(4) ? 20000 : 30));
    if (!random.one_in(3)) number += "." + random.digits(1 + random.below(50));
    if (random.one_in(2)) number.insert(0, 1, '-');
    const auto limit = static_cast<long>(random.limit(5, 500));
    Real_Number exact(number, Bits(limit));
    mpfr_exp(exact.value(), exact.value(), MPFR_RNDN);
    Real_Number size(64);
    mpfr_log10(size.value(), exact.value(), MPFR_RNDN);
    const auto leading = static_cast<long>(std::floor(size.number()));
    const NumberText result = Exp(number, static_cast<double>(limit));
    ASSERT_LT(exact.distance(result, leading - limit - 1), 0.6)
        << number << " at " << limit << ": " << result;
  }
}

// The quotient of two natural logarithms at limit + base digits. Their own bounds hold there, and
// the half unit where they are rounded: to as many characters as there are digits, of which a minus
// and a "0" before the separator take one each.
TEST(Logarithm, IsRightButForWhatItsBaseLeaves) {
  Random_Numbers random(83);
  const char* const bases[] = {"10", "2", "3", "7", "25", "0.5", "1.5", "2.718281828", "60"};
  for (int round = 0; round < 400; ++round) {
    const std::string number = random.positive();
    const std::string base = bases[random.below(std::size(bases))];
    const auto limit = static_cast<long>(random.limit(5, 500));
    const auto working = std::lrint(std::stod(base) + static_cast<double>(limit));
    Real_Number exact(number, Bits(working));
    Real_Number below(base, Bits(working));
    mpfr_log(exact.value(), exact.value(), MPFR_RNDN);
    mpfr_log(below.value(), below.value(), MPFR_RNDN);
    const double rounding = 500;
    const double wrong_above =
        Natural_Bound(exact, working) + rounding * (1 + std::fabs(exact.number()));
    const double wrong_below =
        Natural_Bound(below, working) + rounding * (1 + std::fabs(below.number()));
    mpfr_div(exact.value(), exact.value(), below.value(), MPFR_RNDN);
    const double size = std::fabs(exact.number());
    const double bound = (wrong_above + size * wrong_below) / std::fabs(below.number()) *
                             std::pow(10.0, static_cast<double>(limit - working)) +
                         0.6 * std::fmax(size, 1);
    const NumberText result = Log(number, base, static_cast<double>(limit));
    ASSERT_LT(exact.distance(result, -limit - 1), bound)
        << number << " to base " << base << " at " << limit << ": " << result;
  }
}

TEST(Logarithm, CarriesAsManyGuardDigitsAsItsBaseSays) {
  constexpr double limit = 21;
  const auto natural = [](const NumberText& number, double working) {
    return To_Text(Round_To_SD(Ln(number, working), working));
  };
  const struct {
    HostValue base;
    double working;
    NumberText below;
  } cases[] = {
      {Missing, 31, To_Text(Ln10_Digits(31))},
      {10, 31, To_Text(Ln10_Digits(31))},
      {"10.0", 31, To_Text(Ln10_Digits(31))},
      {2, 23, To_Text(Ln2_Digits(23))},
      {7, 28, natural("7", 28)},
      {100, 121, natural("100", 121)},
      {2.5, 24, natural("2.5", 24)},
      {"3.5", 24, natural("3.5", 24)},
  };
  for (const auto& [base, working, below] : cases) {
    const NumberText quotient =
        Intermediate(operation::divide, natural("3", working), below, working);
    EXPECT_EQ(Log("3", base, limit), Intermediate(operation::add, quotient, "0", limit))
        << working << " digits";
  }
}

// None of its negative terms would end the series.
TEST(NaturalLogarithm, OfNumbersBelowAPowerOfTwoIsSettledEarly) {
  NumberText result;
  const auto yields = Yields_Of([&] { result = Ln("0." + std::string(40, '9'), 1000); });
  EXPECT_LT(yields, 200U);
  Real_Number exact("0." + std::string(40, '9'), 4000);
  mpfr_log(exact.value(), exact.value(), MPFR_RNDN);
  EXPECT_LT(exact.distance(result, -1001), Natural_Bound(exact, 1000));
}

TEST(LogarithmsAndExponential, CanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Ln("3", 50); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Log("3", 7, 50); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Exp("3", 50); }), Failure_Number::interrupted);
}

TEST(LogarithmsAndExponential, FailWhereProductsDo) {
  const Without_Libraries guard;
  EXPECT_EQ(Ln("3", 50), "#VALUE!");
  EXPECT_EQ(Log("3", 7, 50), "#VALUE!");
  EXPECT_EQ(Exp("3", 50), "#VALUE!");
  EXPECT_EQ(Ln("1", 50), "0");
  EXPECT_EQ(Exp("0", 50), "1");
}

}  // namespace
}  // namespace quorvex
