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
    double position;
    const char* expected;
  } cases[] = {
      {"75", 0, "75"},   {"75", 1, "75"},          {"75", 2, "7.5"},
      {"75", 3, "0.75"}, {"75", 4, "0.075"},       {"75", 10, "0.000000075"},
      {"750", 3, "7.5"}, {"7500", 3, "75"},        {"00750", 3, "7.5"},
      {"0", 5, "0"},     {"000", 3, "0"},          {"000", 1, "0"},
      {"750", 1, "750"}, {"12345", -1, "#VALUE!"}, {"0", -0.5, "#VALUE!"},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(Format_Result(c.digits, c.position, true, Options(), false), Localized(c.expected))
          << c.digits << " at " << c.position;
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
      EXPECT_EQ(Format_Result(c.text, 1, false, Options(1, true), false), Localized(c.expected));
    }
  });
}

TEST(FormatResult, ChecksThePositionBeforeTheText) {
  EXPECT_EQ(Format_Result("", -1, true, Options(), false), "#VALUE!");
  EXPECT_EQ(Format_Result("#NUM!", -2, true, Options(), true), "#VALUE!");
}

TEST(FormatResult, CutsDigitsBehindLeadingZeros) {
  const struct {
    const char* digits;
    double position;
    double limit;
    const char* expected;
  } cases[] = {
      {"00123456", 8, 2, "0.0123"}, {"0012356", 1, 2, "12,400"}, {"00999", 4, 1, "1"},
      {"0099999", 6, 1, "1"},       {"00004", 1, 0, "4"},        {"0012", 3, -1, "#VALUE!"},
      {"0012", 5, -5, "#VALUE!"},   {"999996", 3, 3, "10,000"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Format_Result(c.digits, c.position, true, Options(1, true, c.limit), false),
              c.expected)
        << c.digits << " to " << c.limit;
  }
}

TEST(FormatResult, FailsWhereFixedPlacesCantBe) {
  type_Restrictionator options = Options();
  options.FormatDecimalPlace = "abc";
  EXPECT_EQ(Failure_Of([&] { Format_Result("#NUM!", 1, true, options, false); }),
            Failure_Number::type_mismatch);
  options.FormatDecimalPlace = 3e9;
  EXPECT_EQ(Failure_Of([&] { Format_Result("5", 1, true, options, false); }),
            Failure_Number::overflow);
  const Memory_Guard poor(0);
  options.FormatDecimalPlace = 2000000000;
  EXPECT_EQ(Failure_Of([&] { Format_Result("5", 1, true, options, false); }),
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
