// The small routines that trim number text and align decimal points.
#include "text/primitives.h"

#include <gtest/gtest.h>

#include "support/localized.h"
#include "text/decimal_positions.h"
#include "text/expand_exponent.h"

namespace quorvex {
namespace {

struct Pair {
  const char* text;
  const char* expected;
};

// For routines that change a text in place.
template <std::size_t count>
void Expect_Changed(void (*routine)(std::string&), const Pair (&cases)[count]) {
  In_Each_Locale([&] {
    for (const Pair& c : cases) {
      std::string text = Localized(c.text);
      routine(text);
      EXPECT_EQ(text, Localized(c.expected)) << c.text;
    }
  });
}

TEST(Primitives, StripLeadingZeros) {
  Expect_Changed(Strip_Leading_Zeros, {{"", "0"},
                                       {"0", "0"},
                                       {"000", "0"},
                                       {"000.5", "0.5"},
                                       {".5", "0.5"},
                                       {".", "0."},
                                       {"0,012", "12"},
                                       {",0,1,0", "1,0"},
                                       {"-007", "-007"},
                                       {"(007)", "(007)"},
                                       {"00-7", "-7"},
                                       {"$007", "$007"}});
}

TEST(Primitives, StripTrailingZeros) {
  Expect_Changed(Strip_Trailing_Zeros, {{"1.500", "1.5"},
                                        {"2.000", "2"},
                                        {".50", "0.5"},
                                        {".00", "0"},
                                        {".", "0"},
                                        {"0.0", "0"},
                                        {"100", "100"},
                                        {"100.", "100"},
                                        {"", ""},
                                        {"1.0.0", "1.0"}});
}

TEST(Primitives, RemoveMarks) {
  Expect_Changed(Remove_Decimal_Separator,
                 {{"12.5", "125"}, {".5", "5"}, {"5.", "5"}, {"1.2.3", "12.3"}, {"7", "7"}});
  Expect_Changed(Remove_Thousands_Separators,
                 {{"1,2,3", "123"}, {",,", ""}, {",5,", "5"}, {"12.5", "12.5"}});
  Expect_Changed(Remove_Currency_Symbol, {{"$5$", "5"}, {"-$5", "-5"}, {"$$", ""}, {"5", "5"}});
}

TEST(Primitives, InsertThousandsSeparators) {
  const Pair cases[] = {{"", ""},
                        {"1", "1"},
                        {"123", "123"},
                        {"1234", "1,234"},
                        {"123456", "123,456"},
                        {"1234567", "1,234,567"}};
  In_Each_Locale([&] {
    for (const Pair& c : cases)
      EXPECT_EQ(Insert_Thousands_Separators(c.text), Localized(c.expected));
  });
}

TEST(Primitives, Signs) {
  const struct {
    const char* text;
    bool positive;
    const char* stripped;
  } cases[] = {{"", true, ""},          {"5", true, "5"},    {"-0", false, "0"},
               {"--5", false, "-5"},    {"(5)", false, "5"}, {"(5", false, ""},
               {"(", false, ""},        {"-", false, ""},    {"+5", true, "+5"},
               {"(5\u20AC", false, "5"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Is_Positive(std::string_view(c.text)), c.positive) << c.text;
    EXPECT_EQ(Strip_Sign(c.text), c.stripped) << c.text;
  }
  EXPECT_TRUE(Is_Positive(HostValue(0)));
  EXPECT_FALSE(Is_Positive(HostValue(-1e-300)));
  EXPECT_FALSE(Is_Positive(HostValue("-0")));
}

TEST(DecimalPositions, AlignOperandsForAnOperation) {
  const struct {
    const char* operand1;
    const char* operand2;
    std::int16_t operation;
    double position, position1, position2;
    const char* trim1;
    const char* trim2;
    const char* digits1;
    const char* digits2;
  } cases[] = {
      {"1.5", "2.25", 1, 3, 3, 3, "1.50", "2.25", "150", "225"},
      {"2.25", "1.5", 2, 3, 3, 3, "2.25", "1.50", "225", "150"},
      {"12", "3", 1, 1, 1, 1, "12.", "3.", "12", "3"},
      {"12", "0.003", 2, 4, 4, 4, "12.000", "0.003", "12000", "0003"},
      {"5.", "5", 1, 1, 1, 1, "5.", "5.", "5", "5"},
      {"1.5", "2.25", 3, 4, 2, 3, "1.5", "2.25", "15", "225"},
      {"15", "2.25", 3, 3, 0, 3, "15", "2.25", "15", "225"},
      {"1.5", "225", 3, 2, 2, 0, "1.5", "225", "15", "225"},
      {"15", "225", 3, 0, 0, 0, "15", "225", "15", "225"},
      {"1.5", "2.25", 5, 0, 0, 0, "1.5", "2.25", "1.5", "2.25"},
      {"1.5", "2.25", 7, 0, 0, 0, "1.5", "2.25", "1.5", "2.25"},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      const auto aligned =
          Decimal_Positions(Localized(c.operand1), Localized(c.operand2), c.operation);
      EXPECT_EQ(aligned.Position, c.position) << c.operand1 << ' ' << c.operand2;
      EXPECT_EQ(aligned.Position1, c.position1);
      EXPECT_EQ(aligned.Position2, c.position2);
      EXPECT_EQ(aligned.Operand1_Trim, Localized(c.trim1));
      EXPECT_EQ(aligned.Operand2_Trim, Localized(c.trim2));
      EXPECT_EQ(aligned.Operand1_TrimLen, static_cast<double>(std::string_view(c.trim1).size()));
      EXPECT_EQ(aligned.Operand2_TrimLen, static_cast<double>(std::string_view(c.trim2).size()));
      const auto removed = Remove_Decimals(aligned);
      EXPECT_EQ(removed.Operand1_Trim, Localized(c.digits1));
      EXPECT_EQ(removed.Operand2_Trim, Localized(c.digits2));
      EXPECT_EQ(removed.Operand1_TrimLen, static_cast<double>(std::string_view(c.digits1).size()));
      EXPECT_EQ(removed.Operand2_TrimLen, static_cast<double>(std::string_view(c.digits2).size()));
    }
  });
}

// The text as it leaves, zeros that no reader of a result would see included.
TEST(ExpandExponent, WritesPlainDecimals) {
  const Pair cases[] = {
      {"1.5E+3", "1500"},
      {"1.5E-1", "0.15"},
      {"1.5E-2", "0.015"},
      {"1.5E+0", "1.5"},
      {"1.5E-0", "1.5"},
      {"0.05E+1", "00.5"},
      {"12E+1", "12"},
      {"123.45E+1", "12.345"},
      {"1E+0", "1"},
      {"0E+3", "0000"},
      {"(1.5E+1)", "-15"},
      {"-1E-3", "-0.001"},
      {"(5)", "-5"},
      {"(5", "(5"},
      {"(1E+3", "(100"},
      {"1E12", "100"},
      {"-#VALUE!", "#VALUE!"},
      {"(1E5#)", "1E5#"},
      {"-5", "-5"},
      {"--5", "--5"},
      {"", ""},
      {"()", "-"},
      {"1.2.3E+1", "12.3"},
      {"abcE+2", "abc"},
  };
  In_Each_Locale([&] {
    for (const Pair& c : cases) {
      EXPECT_EQ(Expand_Exponent(Localized(c.text)), Localized(c.expected)) << c.text;
    }
  });
}

}  // namespace
}  // namespace quorvex
