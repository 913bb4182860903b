// The small routines that trim number text, read its sign and write its exponent out.
#include "text/primitives.h"

#include <gtest/gtest.h>

#include "support/localized.h"
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
