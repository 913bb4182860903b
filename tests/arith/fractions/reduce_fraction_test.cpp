// Reduced fractions against an independent greatest common divisor.
#include "arith/fractions/reduce_fraction.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "arith/fractions/exact_divisor.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/whole_number.h"
#include "support/without_libraries.h"
#include "text/options.h"

namespace quorvex {
namespace {

// A whole number, or one with a separator among its digits or zeros in front of them.
std::string With_Decimals(Random_Numbers& random, std::string digits) {
  const std::string sign = random.one_in(3) ? "-" : "";
  if (random.one_in(2)) return sign + digits;
  const std::size_t decimals = 1 + random.below(digits.size() + 6);
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  if (digits.back() == '0') digits.back() = '5';
  return sign + digits.insert(digits.size() - decimals, ".");
}

bool Is_One(const std::string& number) {
  return number == "1" || number == "-1";
}

// Where both have decimals and the numerator more, the scale is another one.
bool Is_Scaled_Apart(const Scaled_Digits& n, const Scaled_Digits& d) {
  return d.decimals > 0 && n.decimals > d.decimals;
}

void Expect_Lowest_Terms(const std::string& N, const std::string& D, bool always) {
  const Scaled_Digits n(N);
  const Scaled_Digits d(D);
  const std::size_t decimals = std::max(n.decimals, d.decimals);
  const std::string A = n.digits + std::string(decimals - n.decimals, '0');
  const std::string B = d.digits + std::string(decimals - d.decimals, '0');
  const Whole_Number a(A);
  const Whole_Number b(B);
  const Whole_Number scale = Whole_Number::Ten_To(decimals);
  const type_Fraction fraction = Reduce_Fraction(N, D, {.always_simplify = always});
  SCOPED_TRACE(N + " / " + D);

  if (!Is_One(N) && !Is_One(D) && Whole_Number::Have_One_Magnitude(a, b) &&
      std::max(A.size(), B.size()) > 9) {
    EXPECT_EQ(fraction.Numerator + "/" + fraction.divisor, A + "/" + B);
    EXPECT_EQ(fraction.Reduced_By, "1");
    return;
  }
  const Whole_Number common = Whole_Number::Common_Divisor(a, b);
  if (Is_One(N) || Is_One(D) || (!always && common < scale)) {
    EXPECT_EQ(fraction.Numerator + "/" + fraction.divisor, N + "/" + D);
    EXPECT_EQ(fraction.Reduced_By, "1");
    return;
  }
  EXPECT_EQ(Whole_Number(fraction.Numerator), a / common);
  EXPECT_EQ(Whole_Number(fraction.divisor), b / common);
  const Scaled_Digits by(fraction.Reduced_By);
  ASSERT_LE(by.decimals, decimals);
  EXPECT_EQ(Whole_Number(by.digits + std::string(decimals - by.decimals, '0')), common);
}

TEST(ReducedFractions, HaveNothingInCommonAtAnyLengthAndDefault) {
  Random_Numbers random(81);
  const double before = Default_MaxSD();
  for (int round = 0; round < 6000 && !testing::Test::HasFailure(); ++round) {
    constexpr double defaults[] = {1, 20, 100, 5000, maximum_digits};
    Set_Default_MaxSD(defaults[random.below(std::size(defaults))]);
    constexpr std::size_t lengths[] = {8, 30, 250, 2000};
    const auto [a, b] = Random_Pair(random, lengths[random.below(std::size(lengths))]);
    const std::string N = With_Decimals(random, a);
    const std::string D = With_Decimals(random, b);
    if (Is_Scaled_Apart(Scaled_Digits(N), Scaled_Digits(D))) continue;
    Expect_Lowest_Terms(N, D, random.one_in(2));
  }
  Set_Default_MaxSD(before);
}

// The divisor gets as many zeros as its separator stands further to the right: two here, whatever
// the decimals of both.
TEST(ReducedFractions, AreExactAlsoWhereTheZerosAreMiscounted) {
  Random_Numbers random(82);
  int judged = 0;
  while (judged < 500) {
    auto [n, d] = Random_Pair(random, 300);
    if (n.size() < d.size()) n.swap(d);
    if (d.size() < 10 || n.back() == '0' || d.back() == '0') continue;
    ++judged;
    const Whole_Number a(n);
    const Whole_Number b(d + "00");
    const Whole_Number common = Whole_Number::Common_Divisor(a, b);
    const type_Fraction fraction =
        Reduce_Fraction(n.insert(1, "."), d.insert(3, "."), {.always_simplify = true});
    ASSERT_EQ(Whole_Number(fraction.Numerator), a / common) << n << " / " << d;
    ASSERT_EQ(Whole_Number(fraction.divisor), b / common) << n << " / " << d;
  }
}

// Quotients of many words, and of one bit.
TEST(CommonDivisor, IsExactInWords) {
  Random_Numbers random(83);
  for (int round = 0; round < 1500; ++round) {
    auto [A, B] = Random_Pair(random, 800);
    if (random.one_in(3)) B = random.neighbour(A);
    if (B.front() == '-') B.erase(0, 1);
    B.erase(0, std::min(B.find_first_not_of('0'), B.size() - 1));
    const Whole_Number divisor = Whole_Number::Common_Divisor(Whole_Number(A), Whole_Number(B));
    ASSERT_EQ(Exact_Divisor(A, B), divisor.text()) << A << ' ' << B;
  }
}

// Neighbours in a row in which each number is the sum of the two before it, or nearly: the
// quotients are as small as can be, and as many.
TEST(CommonDivisor, TakesTheMostStepsThereAre) {
  Random_Numbers random(84);
  for (unsigned most = 1; most < 4; ++most) {
    const Whole_Number common(random.digits(40) + "7");
    Whole_Number a("0");
    Whole_Number b = common;
    for (int step = 0; step < 1200; ++step) {
      const Whole_Number quotient(std::to_string(1 + random.below(most)));
      const Whole_Number next = a + quotient * b;
      a = b;
      b = next;
      if (step % 7 != 0) continue;
      ASSERT_EQ(Exact_Divisor(a.text(), b.text()), common.text()) << a.text() << ' ' << b.text();
    }
  }
}

TEST(ReducedFractions, AreATokenWhereNoProductsCanBeFormed) {
  const Without_Libraries without;
  const type_Fraction fraction =
      Reduce_Fraction("12345678901234567890", "98765432109876543210", {});
  EXPECT_EQ(fraction.Numerator, "#VALUE!");
  EXPECT_EQ(fraction.divisor, "#VALUE!");
  EXPECT_EQ(fraction.Reduced_By, "#VALUE!");
}

TEST(ReducedFractions, CanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Reduce_Fraction("12345678901", "9876543210", {}); }),
            Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
