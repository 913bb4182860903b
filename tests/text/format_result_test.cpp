// Results from bare digits, and what no public function can hand to the formatter.
#include "text/format_result.h"

#include <gtest/gtest.h>

#include "host/run_time_failure.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/surroundings.h"
#include "text/to_exponential.h"

namespace quorvex {
namespace {

type_Restrictionator Options(std::int16_t negative = 1, bool thousands = false,
                             double digits = 100) {
  type_Restrictionator options;
  options.FormatNegative = negative;
  options.FormatThousands = thousands;
  options.maxSD = digits;
  return options;
}

TEST(FormatResult, PutsTheSeparatorInItsPlace) {
  const struct {
    const char* digits;
    int power_of_ten;
    const char* expected;
  } cases[] = {
      {"75", 0, "75"},    {"75", 3, "75000"},  {"75", -1, "7.5"},
      {"75", -2, "0.75"}, {"75", -3, "0.075"}, {"75", -9, "0.000000075"},
      {"750", -2, "7.5"}, {"7500", -2, "75"},  {"00750", -2, "7.5"},
      {"0", -4, "0"},     {"0", 4, "0"},       {"000", -2, "0"},
      {"000", 0, "0"},    {"750", 0, "750"},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(Format_Result({c.digits, c.power_of_ten, false}, Options(), false),
                Localized(c.expected))
          << c.digits << " E " << c.power_of_ten;
    }
  });
}

TEST(FormatResult, PassesTextThatIsNoNumber) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"", ""},
      {"#NUM!", "#NUM!"},
      {"12#34", "12#34"},
      {"NUM!", "-N,UM!"},  // tokens without their mark are formatted as if they were digits
      {"DIV/0!", "-DIV,/0!"},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(Format_Result({c.text, 0, true}, Options(1, true), false), Localized(c.expected));
    }
  });
}

TEST(FormatResult, CutsDigitsBehindLeadingZeros) {
  const struct {
    const char* digits;
    int power_of_ten;
    double limit;
    const char* expected;
  } cases[] = {
      {"00123456", -7, 2, "0.0123"}, {"0012356", 0, 2, "12,400"}, {"00999", -3, 1, "1"},
      {"0099999", -5, 1, "1"},       {"00004", 0, 0, "4"},        {"0012", -2, -1, "#VALUE!"},
      {"0012", -4, -5, "#VALUE!"},   {"999996", -2, 3, "10,000"}, {"12356", 2, 2, "1,240,000"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Format_Result({c.digits, c.power_of_ten}, Options(1, true, c.limit), false),
              c.expected)
        << c.digits << " to " << c.limit;
  }
}

TEST(FormatResult, FailsWhereFixedPlacesCantBe) {
  type_Restrictionator options = Options();
  options.FormatDecimalPlace = "abc";
  EXPECT_EQ(Failure_Of([&] { Format_Result({"#NUM!"}, options, false); }),
            Failure_Number::type_mismatch);
  options.FormatDecimalPlace = 3e9;
  EXPECT_EQ(Failure_Of([&] { Format_Result({"5"}, options, false); }), Failure_Number::overflow);
  const Memory_Guard poor(0);
  options.FormatDecimalPlace = 2000000000;
  EXPECT_EQ(Failure_Of([&] { Format_Result({"5"}, options, false); }),
            Failure_Number::out_of_memory);
}

TEST(ToExponential, MovesTheSeparatorBehindTheFirstDigit) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"0.0125", "1.25E-2"},    {"0.5", "5.0E-1"},      {"0.500", "5.00E-1"}, {"0.00", ".0E-3"},
      {"1.5", "1.5"},           {"1.50", "1.50"},       {"-1.5", "-1.5"},     {"-15", "1.5E+1"},
      {"-0.5", "5.0E-1"},       {"1200", "1.2E+3"},     {"1000", "1.0E+3"},   {"12.5", "1.25E+1"},
      {"10.00", "1.0E+1"},      {"10.01", "1.001E+1"},  {"5", "5.E+0"},       {"0", "0.E+0"},
      {"123456", "1.23456E+5"}, {"100200", "1.002E+5"}, {"12.", "1.2E+1"},    {"", "..E+-1"},
      {"-", "..E+-1"},          {".5", "..5E+-1"},      {".00", "..0E+-1"},   {"..", ".."},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(To_Exponential(Localized(c.text)), Localized(c.expected)) << c.text;
    }
  });
}

}  // namespace
}  // namespace quorvex
