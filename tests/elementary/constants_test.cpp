// The digits of the constants, worked out anew: from other series than the build's, summed as
// fractions of exact whole numbers by the engine's own arithmetic.
#include "elementary/constants.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "arith/digits/add_digits.h"
#include "arith/digits/multiply_digits.h"
#include "arith/digits/subtract_digits.h"
#include "arith/do_operation.h"
#include "elementary/digits/digits.h"
#include "support/failures.h"
#include "support/locales.h"
#include "text/round_function.h"

namespace quorvex {
namespace {

const HostValue working_digits = 41050;

NumberText Calculate(std::int16_t code, const NumberText& a, const NumberText& b) {
  return Do_Operation(code, a, b, {.maximum_significant_digits = working_digits},
                      {.intermediate = true});
}

// numerator / (denominator * power), the latter a power of the series' argument.
struct Fraction {
  NumberText numerator;
  NumberText denominator;
  NumberText power;
};

NumberText Sum_Of(const NumberText& a, const NumberText& b) {
  return Add_Decimals({a, {}}, {b, {}});
}

// The sum of 1 / ((2 j + 1) x^(2 (j - begin))) over j, with alternating signs unless hyperbolic.
Fraction Sum_Of_Odd_Terms(int begin, int end, const NumberText& square, bool hyperbolic) {
  if (end - begin == 1) return {square, std::to_string(2 * begin + 1), square};
  const int middle = (begin + end) / 2;
  const Fraction left = Sum_Of_Odd_Terms(begin, middle, square, hyperbolic);
  const Fraction right = Sum_Of_Odd_Terms(middle, end, square, hyperbolic);
  const NumberText a =
      Multiply_Digits(Multiply_Digits(left.numerator, right.denominator), right.power);
  const NumberText b = Multiply_Digits(right.numerator, left.denominator);
  const bool adds = hyperbolic || (middle - begin) % 2 == 0;
  return {adds ? Sum_Of(a, b) : Subtract_Decimals({a, {}}, {b, {}}).Difference,
          Multiply_Digits(left.denominator, right.denominator),
          Multiply_Digits(left.power, right.power)};
}

// The arc tangent of 1/x, or its area tangent; `terms` of them are enough.
NumberText Inverse_Tangent(int x, int terms, bool hyperbolic) {
  const Fraction sum = Sum_Of_Odd_Terms(0, terms, std::to_string(x * x), hyperbolic);
  const NumberText below =
      Multiply_Digits(Multiply_Digits(sum.denominator, sum.power), std::to_string(x));
  return Calculate(operation::divide, sum.numerator, below);
}

NumberText Times(int factor, const NumberText& number) {
  return Calculate(operation::multiply, std::to_string(factor), number);
}

NumberText Plus(const NumberText& a, const NumberText& b) {
  return Calculate(operation::add, a, b);
}

// The sum of begin! / j! over j from begin + 1 to end, as numerator and denominator.
std::pair<NumberText, NumberText> Sum_Of_Reciprocal_Factorials(int begin, int end) {
  if (end - begin == 1) return {"1", std::to_string(end)};
  const int middle = (begin + end) / 2;
  const auto left = Sum_Of_Reciprocal_Factorials(begin, middle);
  const auto right = Sum_Of_Reciprocal_Factorials(middle, end);
  return {Sum_Of(Multiply_Digits(left.first, right.second), right.first),
          Multiply_Digits(left.second, right.second)};
}

NumberText Cut(const NumberText& number, std::string_view decimals) {
  return number.substr(0, 2 + decimals.size());
}

NumberText Rounded(const NumberText& number, std::string_view decimals) {
  return Round_Function(number, static_cast<double>(decimals.size()), Rounding_Direction::nearest,
                        {});
}

TEST(ConstantDigits, OfPiAreTrueAndTheLastOneRounded) {
  const NumberText pi = Plus(Times(16, Inverse_Tangent(5, 23500, false)),
                             Times(-4, Inverse_Tangent(239, 7000, false)));
  EXPECT_EQ(digits::pi.size(), 32766);
  EXPECT_EQ("3." + std::string(digits::pi), Rounded(pi, digits::pi));
  EXPECT_NE("3." + std::string(digits::pi), Cut(pi, digits::pi));
}

TEST(ConstantDigits, OfEAreTrueAndTheLastOneRounded) {
  const auto sum = Sum_Of_Reciprocal_Factorials(0, 9500);
  const NumberText e = Plus("1", Calculate(operation::divide, sum.first, sum.second));
  EXPECT_EQ(digits::e.size(), 32766);
  EXPECT_EQ("2." + std::string(digits::e), Rounded(e, digits::e));
  EXPECT_NE("2." + std::string(digits::e), Cut(e, digits::e));
}

TEST(ConstantDigits, OfTheLogarithmsAreTrueAndCut) {
  const NumberText a = Inverse_Tangent(251, 8600, true);
  const NumberText b = Inverse_Tangent(449, 7800, true);
  const NumberText c = Inverse_Tangent(4801, 5600, true);
  const NumberText d = Inverse_Tangent(8749, 5300, true);
  const NumberText ln2 = Plus(Plus(Times(144, a), Times(54, b)), Plus(Times(-38, c), Times(62, d)));
  const NumberText ln5 =
      Plus(Plus(Times(334, a), Times(126, b)), Plus(Times(-88, c), Times(144, d)));
  EXPECT_EQ(digits::ln2.size(), 40050);
  EXPECT_EQ("0." + std::string(digits::ln2), Cut(ln2, digits::ln2));
  EXPECT_EQ(digits::ln10.size(), 41000);
  EXPECT_EQ("2." + std::string(digits::ln10), Cut(Plus(ln2, ln5), digits::ln10));
}

TEST(Constants, AreServedToTheirLimits) {
  const std::string pi = "3." + std::string(digits::pi);
  const std::string ln2 = "0." + std::string(digits::ln2);
  const std::string ln10 = "2." + std::string(digits::ln10);
  EXPECT_EQ(Pi_Digits(32766).text(), pi.substr(0, 32767));
  EXPECT_EQ(Pi_Digits(32767).text(), pi);
  EXPECT_EQ(Pi_Digits(32768).text(), pi);
  EXPECT_EQ(Pi_Digits(32768.5).text(), "#NUM!");
  EXPECT_EQ(E_Digits(32768).text(), "2." + std::string(digits::e));
  EXPECT_EQ(E_Digits(32769).text(), "#NUM!");
  EXPECT_EQ(Ln2_Digits(5).text(), "0.6931");
  EXPECT_EQ(Ln2_Digits(40051).text(), ln2);
  EXPECT_EQ(Ln2_Digits(40052).text(), "#NUM!");
  EXPECT_EQ(Ln10_Digits(5).text(), "2.3025");
  EXPECT_EQ(Ln10_Digits(40051).text(), ln10.substr(0, ln10.size() - 950));
  EXPECT_EQ(Ln10_Digits(40052).text(), "#NUM!");
  EXPECT_EQ(Ln10_Digits("abc").text(), "#NUM!");
  EXPECT_EQ(Failure_Of([] { Ln2_Digits(-2); }), Failure_Number::invalid_call);
}

TEST(Constants, CountASeparatorOfSeveralBytesAsOneCharacter) {
  Locale locale = Comma_Locale();
  locale.decimal_separator = "\u066B";
  const Locale_Guard guard(locale);
  EXPECT_EQ(Pi_Digits(0).text(), "3");
  EXPECT_EQ(Pi_Digits(1).text(), "3\u066B");
  EXPECT_EQ(Pi_Digits(3).text(), "3\u066B14");
}

}  // namespace
}  // namespace quorvex
