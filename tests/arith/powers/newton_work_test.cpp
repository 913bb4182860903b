// The bound of Newton's way against the same iteration on floats, and what is refused for it.
#include "arith/powers/newton_work.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>

#include "arith/do_operation.h"
#include "arith/powers/newton_root.h"
#include "arith/powers/power_function.h"
#include "arith/powers/root_estimate.h"
#include "support/failures.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

constexpr Newton_Limits limits{101, 150};

std::string Power_Of_Ten(std::size_t exponent) {
  return "1" + std::string(exponent, '0');
}

// The rounds of the iteration from 1 until the logarithm of value^degree / radicand, which is what
// it works on here, is next to 0.
double Rounds_From_One(double log_radicand, double degree) {
  double w = -log_radicand;
  double rounds = 0;
  const double near = std::fmin(1, degree);
  while (std::fabs(w) > near) {
    // Where e^-w is beyond floats, the rest of the sum is nothing beside it.
    w += degree * (-w > 700 ? -w - std::log(degree) : std::log1p(std::expm1(-w) / degree));
    ++rounds;
  }
  return rounds;
}

TEST(NewtonWork, OfDegreesAboveOneIsNextToTheRoundsItBounds) {
  struct Case {
    std::size_t radicand;  // a power of ten
    const char* degree;
  };
  constexpr Case cases[] = {{1, "10000000000000000"},
                            {3, "10000000000000000"},
                            {5, "123456789012345678"},
                            {400, "3"},
                            {400, "5.5"},
                            {2000, "7"},
                            {5000, "1000"},
                            {3, "1000000000000000000000000000000"}};
  for (const Case& each : cases) {
    const std::string radicand = Power_Of_Ten(each.radicand);
    ASSERT_EQ(Root_Estimate(Step_Number(radicand), Step_Number(each.degree)).text(), "1")
        << each.degree;
    const double expected =
        Rounds_From_One(static_cast<double>(each.radicand) * std::log(10), std::stod(each.degree));
    const double bound =
        Least_Work(Step_Number(radicand), Step_Number(each.degree), Step_Number(1), limits).rounds;
    EXPECT_LE(bound, expected) << each.radicand << " degree " << each.degree;
    EXPECT_GE(bound, 0.9 * expected - 5) << each.radicand << " degree " << each.degree;
  }
}

TEST(NewtonWork, OfDegreesBelowOneBoundsTheRounds) {
  struct Case {
    const char* radicand;
    const char* degree;
  };
  // The values stay below 10^308 for half the way.
  constexpr Case cases[] = {{"2", "0.0009"}, {"10", "0.003"}, {"100", "0.005"}, {"1.1", "0.0001"}};
  for (const Case& each : cases) {
    ASSERT_EQ(Root_Estimate(Step_Number(each.radicand), Step_Number(each.degree)).text(), "1")
        << each.degree;
    const double expected =
        Rounds_From_One(std::log(std::stod(each.radicand)), std::stod(each.degree));
    const double bound =
        Least_Work(Step_Number(each.radicand), Step_Number(each.degree), Step_Number(1), limits)
            .rounds;
    EXPECT_LE(bound, expected) << each.radicand << " degree " << each.degree;
    EXPECT_GE(bound, expected / 8) << each.radicand << " degree " << each.degree;
  }
}

// Each round yields, and so do the rounds within it.
TEST(NewtonWork, IsNoMoreThanWhatIsDone) {
  struct Case {
    std::string radicand;
    const char* degree;
    const char* start;
  };
  const Case cases[] = {{"1000", "10000000000000000", "1"},
                        {Power_Of_Ten(100), "1600000000000000", "1.00000000000014"},
                        {Power_Of_Ten(500), "0.75", "1"},
                        {"3", "0.0015", "1"},
                        {Power_Of_Ten(400), "7", "1"}};
  for (const Case& each : cases) {
    ASSERT_EQ(Root_Estimate(Step_Number(each.radicand), Step_Number(each.degree)).text(),
              each.start);
    const Newton_Limits few{21, 40};
    const double bound = Least_Work(Step_Number(each.radicand), Step_Number(each.degree),
                                    Step_Number(each.start), few)
                             .rounds;
    EXPECT_GT(bound, 40) << each.degree;
    const std::size_t yields = Yields_Of([&] {
      Newton_Root(Step_Number(each.radicand), Step_Number(each.degree), Step_Number(each.start),
                  few, Power);
    });
    EXPECT_LE(bound, static_cast<double>(yields)) << each.degree;
  }
}

TEST(NewtonWork, IsNoneFromACloseStartAndWhereTheIterationEndsBefore) {
  struct Case {
    const char* reason;
    std::string radicand;
    const char* degree;
    double maxSD;
  };
  const Case cases[] = {
      {"a close start", "1000", "3", 101},
      {"close although the degree is large", Power_Of_Ten(200), "1000000000000000", 101},
      {"steps below the digits compared", "1000000000000", "10000000000000000", 10},
      {"a power without room", Power_Of_Ten(20), "10000000000000000", 101},
      {"a number above the root, for a degree below 1", "0.1", "0.0001", 101}};
  for (const Case& each : cases) {
    const NumberText start =
        Root_Estimate(Step_Number(each.radicand), Step_Number(each.degree)).text();
    EXPECT_LT(Least_Work(Step_Number(each.radicand), Step_Number(each.degree), Step_Number(start),
                         {each.maxSD, 150})
                  .rounds,
              1)
        << each.reason;
  }
}

TEST(NewtonRoot, RefusesAWayThatNobodyWaitsFor) {
  struct Case {
    std::string radicand;
    const char* degree;
  };
  const Case cases[] = {{"1000000000", "10000000000000000"},
                        {"-1000000000", "10000000000000001"},
                        {"10", "0.0001"},
                        {"1000000", "0.0000000000000000001"},
                        {Power_Of_Ten(300000), "3"}};
  for (const Case& each : cases) {
    const Newton_Limits all{101, 101 + static_cast<double>(each.radicand.size())};
    EXPECT_EQ(Failure_Of([&] {
                Newton_Root(Step_Number(each.radicand), Step_Number(each.degree), Step_Number(1),
                            all, Power);
              }),
              Failure_Number::too_complex)
        << each.degree;
    NumberText root;
    EXPECT_EQ(
        Yields_Of([&] { root = Do_Operation(operation::root, each.radicand, each.degree, {}); }),
        0U);
    EXPECT_EQ(root, "#VALUE!") << each.degree;
  }
  // A thousand rounds are no reason.
  EXPECT_EQ(Do_Operation(operation::power, "1000", "0.1234567890123457", {}).substr(0, 30),
            "2.3462288301342916727840297785");
}

}  // namespace
}  // namespace quorvex
