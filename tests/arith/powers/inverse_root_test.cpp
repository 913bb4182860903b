#include "arith/powers/inverse_root.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <string>

#include "arith/operation/step_number.h"
#include "arith/powers/leading_digits.h"
#include "support/random_numbers.h"
#include "text/decimal.h"

namespace quorvex {
namespace {

// The first digits of floor(radicand^(1 / degree) * 10^more), by whole roots of another library.
std::string Whole_Root(const std::string& digits, unsigned degree, std::size_t more) {
  mpz_t number;
  mpz_init_set_str(number, (digits + std::string(more * degree, '0')).c_str(), 10);
  mpz_root(number, number, degree);
  std::string root(mpz_sizeinbase(number, 10) + 2, '\0');
  mpz_get_str(root.data(), 10, number);
  mpz_clear(number);
  return root.c_str();
}

// |a - b| in units of the last of so many digits, at most.
bool Agree(const limbs::Number& found, const std::string& digits, std::int64_t power,
           std::size_t count) {
  limbs::Number difference;
  limbs::Add(found, limbs::Number_Of({digits, power}), true, count + 20, difference);
  return difference.is_zero() ||
         limbs::Leading_Power(difference) <
             limbs::Leading_Power(found) - static_cast<std::int64_t>(count) + 1;
}

TEST(InverseRoot, RootsAreRightToTheDigitsAskedFor) {
  Random_Numbers random(1810);
  constexpr unsigned degrees[] = {2, 2, 2, 3, 5, 7, 10, 64, 99, 100, 999, 1000};
  for (int round = 0; round < 600; ++round) {
    const unsigned degree = degrees[random.below(std::size(degrees))];
    const std::size_t count = 15 + random.length(degree > 10 ? 100 : 2500);
    const std::string digits = random.one_of("123456789") + random.digits(random.length(900));
    const auto scale = static_cast<std::int64_t>(random.below(400)) - 200;
    const limbs::Number radicand =
        limbs::Number_Of({digits, scale * static_cast<std::int64_t>(degree)});
    const Root_And_Inverse found = Find_Root(radicand, degree, count);
    const std::size_t more = count + 10;
    const std::string expected = Whole_Root(digits, degree, more);
    ASSERT_TRUE(Agree(found.root, expected, scale - static_cast<std::int64_t>(more), count))
        << digits << " degree " << degree << " to " << count;
    limbs::Number one;
    limbs::Multiply(found.root, found.inverse, 2 * count + 40, one);
    ASSERT_TRUE(Agree(one, "1", 0, count - 1)) << digits << " degree " << degree;
  }
}

// Squares and their neighbours, rows of nines, powers of ten, and any digits; the lengths about
// where roots are found limb by limb and where not.
TEST(InverseRoot, SquareRootsAreRightToTheDigitsAskedFor) {
  Random_Numbers random(1811);
  for (int round = 0; round < 4000; ++round) {
    const std::size_t count = 15 + random.below(random.one_in(3) ? 700 : 120);
    std::string digits = random.one_of("123456789") + random.digits(random.below(300));
    if (random.one_in(3)) {
      limbs::Number square = limbs::Number_Of({digits, 0});
      limbs::Multiply(square, square, 2 * digits.size() + 36, square);
      limbs::Add(square, Short_Number(1, 0), random.one_in(2), 2 * digits.size() + 36, square);
      if (!square.is_zero()) digits = limbs::Digits_Of(square);
    } else if (random.one_in(4)) {
      digits = random.one_in(2) ? std::string(digits.size(), '9') : "1";
    }
    const auto scale = static_cast<std::int64_t>(random.below(400)) - 200;
    const limbs::Number radicand = limbs::Number_Of({digits, 2 * scale});
    const limbs::Number root = Find_Square_Root(radicand, count);
    const std::size_t more = count + 10;
    const std::string expected = Whole_Root(digits, 2, more);
    ASSERT_TRUE(Agree(root, expected, scale - static_cast<std::int64_t>(more), count))
        << digits << " at " << scale << " to " << count;
  }
}

TEST(InverseRoot, LeadingDigitsAreThoseOfTheNumber) {
  struct Case {
    const char* number;
    double mantissa;
    std::int64_t power;
  };
  constexpr Case cases[] = {{"1", 1, 0},
                            {"-250", -2.5, 2},
                            {"0.000000000000000000000125", 1.25, -22},
                            {"999999999999999999999999", 9.99999999999999999, 23},
                            {"1000000000000000000.5", 1, 18},
                            {"0", 0, 0}};
  for (const Case& c : cases) {
    const Leading_Digits leading = Leading_Digits_Of(Step_Number(c.number).in_limbs());
    EXPECT_DOUBLE_EQ(leading.mantissa, c.mantissa) << c.number;
    EXPECT_EQ(leading.power, c.power) << c.number;
  }
}

TEST(InverseRoot, WhatStandsBehindAPlaceIsAPartOfItsUnit) {
  struct Case {
    const char* number;
    std::int64_t last;
    double part;
  };
  constexpr Case cases[] = {{"12.5", 0, 0.5},
                            {"12.5", 1, 0.25},
                            {"12.5", 2, 0.125},
                            {"12.5", -1, 0},
                            {"12.5", 40, 0},
                            {"12.5", -40, 0},
                            {"0.0625", 0, 0.0625},
                            {"3.000000000000000000999", -18, 0.999},
                            {"5000000000000000000", 19, 0.5}};
  for (const Case& c : cases) {
    EXPECT_NEAR(Part_Behind(Step_Number(c.number).in_limbs(), c.last), c.part, 1e-15)
        << c.number << " behind " << c.last;
  }
}

TEST(InverseRoot, ShortNumbersStandWhereTheirPowerSays) {
  EXPECT_EQ(Step_Number(Short_Number(-125, -20)).text(), "-0.00000000000000000125");
  EXPECT_EQ(Step_Number(Short_Number(999999999999999999, 7)).text(), "9999999999999999990000000");
  EXPECT_TRUE(Short_Number(0, 5).is_zero());
}

}  // namespace
}  // namespace quorvex
