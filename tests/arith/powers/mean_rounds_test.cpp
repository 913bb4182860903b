// What is told of a sum of value and quotient, against all sums that it may be.
#include "arith/powers/mean_rounds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>

namespace quorvex {
namespace {

// The units that division makes of guard digits which are known exactly.
double Units_Of(double guards) {
  const double units = std::floor(guards / guard_units);
  const double left = guards - units * guard_units;
  return units + (Round_Between(left, left) == Told_Rounding::is_raised ? 1 : 0);
}

// Values are known the less the more rounds led to them.
TEST(SumWithQuotient, HoldsWhateverTheValueIsWrongBy) {
  constexpr std::size_t digits = 40;
  constexpr int last_power = 2 - static_cast<int>(digits + division_guard_digits);
  std::mt19937 random(29);
  const auto part = [&random] { return std::uniform_real_distribution<double>(0, 1)(random); };
  int told = 0;
  int left_open = 0;
  for (int round = 0; round < 100'000; ++round) {
    const double root = 1 + 9 * part();
    const Leading_Digits e{1 + 9 * part(), -17 - static_cast<std::int64_t>(random() % 3)};
    const Far_Value value{e, std::pow(10.0, -6 - 9 * part()), 0};
    const double guards = guard_units * part();
    const std::optional<Rounded_Sum> sum = Sum_With_Quotient(value, guards, root, digits);
    if (!sum) {
      ++left_open;
      continue;
    }
    ++told;
    const double wrong = 1 + value.error * (2 * part() - 1);
    const double added = std::pow(e.mantissa * wrong, 2) * root *
                         std::pow(10.0, static_cast<double>(2 * e.power - last_power + 1));
    const double units = Units_Of(guards + added - part() * Most_Lost(root));
    const bool is_one_more = units == sum->units + 1;
    ASSERT_TRUE(units == sum->units || is_one_more) << guards + added;
    ASSERT_NE(sum->rounding, is_one_more ? Told_Rounding::stays : Told_Rounding::is_raised)
        << guards + added;
  }
  EXPECT_GT(told, 30'000);
  EXPECT_GT(left_open, 10'000);
}

}  // namespace
}  // namespace quorvex
