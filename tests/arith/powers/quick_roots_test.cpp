// What is told of a root's iteration against the iteration itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "arith/operation/steps.h"
#include "arith/powers/newton_end.h"
#include "arith/powers/power_function.h"
#include "arith/powers/root_estimate.h"
#include "arith/powers/root_neighbourhood.h"
#include "host/conversions.h"
#include "support/random_numbers.h"
#include "support/text_steps.h"
#include "text/compare_numbers.h"
#include "text/decimal.h"
#include "text/expand_exponent.h"
#include "text/round_to_length.h"

namespace quorvex {
namespace {

int Rounds(int usual) {
  const char* const asked = std::getenv("QUORVEX_ROUNDS");
  return asked == nullptr ? usual : std::atoi(asked);
}

// Squares of numbers whose digits behind the limit are where guards decide, and their neighbours;
// rows of nines; short numbers; any digits.
std::string Radicand(Random_Numbers& random, std::size_t limit) {
  Decimal number;
  const std::string first = random.one_of("123456789") + random.digits(random.below(9));
  switch (random.below(5)) {
    case 0: {
      const std::string root = random.one_of("123456789") + random.digits(limit + random.below(4));
      const char* const ends[] = {"5", "500", "495", "94999", "95", "96", "5001", "49", "0005"};
      const Text_Steps exact{4000};
      number.digits = exact.product(root + ends[random.below(std::size(ends))],
                                    root + ends[random.below(std::size(ends))]);
      if (random.one_in(2)) number.digits = exact.sum(number.digits, random.one_in(2) ? "1" : "-1");
      break;
    }
    case 1:
      number.digits = std::string(1 + random.below(2 * limit), '9') + random.one_of("9875");
      break;
    case 2:
      number.digits = first + std::string(random.below(2 * limit), '0') + random.one_of("12345");
      break;
    case 3:
      number.digits = first;
      break;
    default:
      number.digits = random.one_of("123456789") + random.digits(random.below(2 * limit));
  }
  const auto length = static_cast<std::int64_t>(number.digits.size());
  number.power_of_ten = static_cast<std::int64_t>(random.below(5)) - length;
  if (random.one_in(8)) number.power_of_ten += static_cast<std::int64_t>(random.below(900)) - 450;
  Strip_Zeros(number);
  return Plain_Text(number);
}

std::size_t Limit(Random_Numbers& random) {
  return random.one_in(9) ? 200 + random.below(2000) : 36 + random.below(160);
}

TEST(QuickRoots, QuotientsNearTheRootAreThoseOfDivision) {
  Random_Numbers random(1820);
  int told = 0;
  int asked = 0;
  for (int round = Rounds(3000); round > 0; --round) {
    const std::size_t limit = Limit(random);
    const Steps steps(static_cast<double>(limit));
    const Step_Number radicand(Radicand(random, limit));
    const auto near = Root_Neighbourhood::Of(radicand, steps.limit());
    if (!near) continue;
    // Two rounds of means from twice as many digits as floats have, and what lies about them.
    Step_Number value = Root_Estimate(radicand, Step_Number(2));
    for (int mean = 0; mean < 14; ++mean) {
      if (const auto quotient = near->quotient(value)) {
        const Step_Number expected = steps.quotient(radicand, value);
        ASSERT_EQ(quotient->text(), expected.text())
            << radicand.text() << " by " << value.text() << " at " << limit;
        ASSERT_EQ(near->mean(value, *quotient).text(),
                  steps.quotient(steps.sum(value, expected), Step_Number(2)).text())
            << radicand.text() << " by " << value.text() << " at " << limit;
        ++told;
      } else if (mean > 12) {
        ++asked;
      }
      const Step_Number before = value;
      value = steps.quotient(steps.sum(value, steps.quotient(radicand, value)), Step_Number(2));
      // At rest: a unit or some beside.
      if (Is_Equal(before, value)) {
        const auto last = value.leading_power() - static_cast<std::int64_t>(limit);
        value = steps.sum(value, Step_Number(Decimal{std::to_string(1 + random.below(9)), last}));
      }
    }
  }
  EXPECT_GT(told, 20 * asked);
}

TEST(QuickRoots, ValuesThatRoundsLeadToAreAmongThoseTold) {
  Random_Numbers random(1821);
  int told = 0;
  int doubtful = 0;
  for (int round = Rounds(2500); round > 0; --round) {
    const std::size_t limit = Limit(random);
    const Steps steps(static_cast<double>(limit));
    const Step_Number radicand(Radicand(random, limit));
    const auto near = Root_Neighbourhood::Of(radicand, steps.limit());
    if (!near) continue;
    Step_Number value = random.one_in(8) ? Step_Number(static_cast<double>(1 + random.below(50)))
                                         : Root_Estimate(radicand, Step_Number(2));
    const auto later = near->later_values(value);
    if (!later) continue;
    if (later->rounds > 60) continue;
    for (int step = 0; step < later->rounds; ++step) {
      value = steps.quotient(steps.sum(value, steps.quotient(radicand, value)), Step_Number(2));
    }
    ASSERT_TRUE(std::any_of(later->values.begin(), later->values.end(),
                            [&](const Step_Number& each) { return Is_Equal(each, value); }))
        << radicand.text() << " at " << limit << ": not " << later->values.front().text()
        << " after " << later->rounds << " rounds, but " << value.text();
    ++told;
    doubtful += later->values.size() > 1 ? 1 : 0;
  }
  EXPECT_GT(told, 500);
  EXPECT_LT(4 * doubtful, told);
}

// What the host writes of the floats' root, wherever floats have one.
TEST(QuickRoots, EstimatesAreTheHostsDigits) {
  Random_Numbers random(1823);
  for (int round = Rounds(20000); round > 0; --round) {
    NumberText radicand = random.one_of("123456789") + random.digits(random.below(60));
    if (random.one_in(2)) radicand.insert(1 + random.below(radicand.size()), ".");
    if (random.one_in(6))
      radicand = "0." + std::string(random.below(30), '0') + random.one_of("19");
    const double degree = random.one_in(2) ? 2 : static_cast<double>(1 + random.below(12));
    const Step_Number number(radicand);
    if (!number.is_in_limbs()) continue;
    const double root = std::pow(Text_To_Number(radicand), 1 / degree);
    ASSERT_EQ(Root_Estimate(number, Step_Number(degree)).text(),
              Expand_Exponent(Number_To_Text(root)))
        << radicand << " degree " << degree;
  }
}

// The iteration itself, its end told by rounded texts; nothing where it takes long.
std::string Newton_By_Steps(const Step_Number& radicand, const Step_Number& degree,
                            Step_Number value, const Newton_Limits& limits) {
  const Steps steps(limits.steps);
  const Step_Number less_one = steps.difference(degree, Step_Number(1));
  for (int round = 0; round < 60; ++round) {
    const Step_Number before = value;
    const Step_Number quotient = steps.quotient(radicand, Power(value, less_one, steps));
    value = steps.quotient(steps.sum(steps.product(less_one, value), quotient), degree);
    const std::string text = value.text();
    const std::string text_before = before.text();
    const bool only_grew = static_cast<double>(text.size()) > limits.maxSD &&
                           text.size() == text_before.size() + 1 && text.starts_with(text_before);
    if (only_grew || Is_Equal(Round_To_Length(text, limits.maxSD - 1),
                              Round_To_Length(text_before, limits.maxSD - 1))) {
      Decimal root = before.decimal();
      Round(root, limits.maxSD + 1);
      return Plain_Text(root);
    }
  }
  return {};
}

TEST(QuickRoots, EndsOfNewtonsIterationAreItsOwn) {
  constexpr double degrees[] = {3, 3, 4, 5, 6, 7, 9, 10, 11, 20, 99, 128};
  Random_Numbers random(1822);
  int told = 0;
  int asked = 0;
  for (int round = Rounds(2500); round > 0; --round) {
    const std::size_t limit = 20 + random.below(random.one_in(6) ? 300 : 60);
    const Step_Number radicand(Radicand(random, limit));
    const Step_Number degree(degrees[random.below(std::size(degrees))]);
    const double maxSD = static_cast<double>(limit) + 1;
    const Newton_Limits limits{maxSD, maxSD + 1 + static_cast<double>(random.below(6))};
    const Step_Number start = Root_Estimate(radicand, degree);
    const auto end = Newton_End(radicand, degree, start, limits);
    ++asked;
    if (!end) continue;
    const std::string expected = Newton_By_Steps(radicand, degree, start, limits);
    if (expected.empty()) continue;
    ASSERT_EQ(Plain_Text(*end), expected)
        << radicand.text() << " degree " << degree.text() << " at " << limit;
    ++told;
  }
  EXPECT_GT(2 * told, asked);
}

}  // namespace
}  // namespace quorvex
