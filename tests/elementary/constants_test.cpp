// The digits of the constants, beside those of an independent library, and how they are served.
#include "elementary/constants.h"

#include <gtest/gtest.h>

#include <string>

#include "elementary/digits/digits.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/real_number.h"

namespace quorvex {
namespace {

constexpr int all_digits = 41010;

// Of the whole number, as many decimals as there are.
std::string Text_Of(const Real_Number& number, std::string_view decimals, mpfr_rnd_t rounding) {
  return number.text(static_cast<int>(decimals.size()), rounding);
}

void Expect_Rounded(const std::string& whole, std::string_view decimals,
                    const Real_Number& number) {
  EXPECT_EQ(decimals.size(), 32766U);
  EXPECT_EQ(whole + std::string(decimals), Text_Of(number, decimals, MPFR_RNDN));
  EXPECT_NE(whole + std::string(decimals), Text_Of(number, decimals, MPFR_RNDZ));
}

TEST(ConstantDigits, AreTrueAndTheLastOneRoundedOrCut) {
  Real_Number number(Bits_For(all_digits));
  mpfr_const_pi(number.value(), MPFR_RNDN);
  Expect_Rounded("3.", digits::pi, number);
  mpfr_set_ui(number.value(), 1, MPFR_RNDN);
  mpfr_exp(number.value(), number.value(), MPFR_RNDN);
  Expect_Rounded("2.", digits::e, number);
  mpfr_const_log2(number.value(), MPFR_RNDN);
  EXPECT_EQ(digits::ln2.size(), 40050U);
  EXPECT_EQ("0." + std::string(digits::ln2), Text_Of(number, digits::ln2, MPFR_RNDZ));
  mpfr_log_ui(number.value(), 10, MPFR_RNDN);
  EXPECT_EQ(digits::ln10.size(), 41000U);
  EXPECT_EQ("2." + std::string(digits::ln10), Text_Of(number, digits::ln10, MPFR_RNDZ));
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
