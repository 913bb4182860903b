// Numbers in normal form.
#include "text/clean_up_number.h"

#include <gtest/gtest.h>

#include "support/localized.h"

namespace quorvex {
namespace {

struct Form {
  bool keep_decimal;
  bool keep_sign;
  const char* text;
  double position;
};

TEST(CleanUpNumber, GivesFourForms) {
  const struct {
    const char* number;
    bool positive;
    double counted;
    Form forms[4];
  } cases[] = {
      {"-1,234.500",
       false,
       1,
       {{false, false, "12345", 2},
        {true, false, "1234.5", 2},
        {false, true, "-12345", 3},
        {true, true, "-1234.5", 3}}},
      {"0.05",
       true,
       0,
       {{false, false, "005", 3},
        {true, false, "0.05", 3},
        {false, true, "005", 3},
        {true, true, "0.05", 3}}},
      {"-.0500",
       false,
       0,
       {{false, false, "005", 3},
        {true, false, "0.05", 3},
        {false, true, "-005", 4},
        {true, true, "-0.05", 4}}},
      {"($7,000)",
       false,
       4,
       {{false, false, "7000", 0},
        {true, false, "7000", 0},
        {false, true, "-7000", 1},
        {true, true, "-7000", 1}}},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      for (const Form& form : c.forms) {
        const type_CleanUp clean =
            Clean_Up_Number(Localized(c.number), form.keep_decimal, form.keep_sign);
        EXPECT_EQ(clean.NumClean, Localized(form.text)) << c.number;
        EXPECT_EQ(clean.DecPos, form.position) << c.number;
        EXPECT_EQ(clean.Positive, c.positive) << c.number;
        EXPECT_EQ(clean.NumNonZeroCharsLeftOfDec, c.counted) << c.number;
        EXPECT_FALSE(clean.IsError) << c.number;
      }
    }
  });
}

TEST(CleanUpNumber, ReadsTextInEveryDress) {
  const struct {
    const char* number;
    const char* clean;
    bool positive;
    double position;
    double counted;
  } cases[] = {
      {"1.5E+3", "1500", true, 0, 4},  {"1.5E-3", "0.0015", true, 5, 0},
      {"0", "0", true, 0, 0},          {"", "0", true, 0, 0},
      {"-0", "0", true, 0, 0},         {"-0.00", "0", true, 0, 0},
      {"(0)", "0", true, 0, 0},        {"0.10", "0.1", true, 2, 0},
      {"\"'-5'\"", "-5", false, 1, 1}, {".", "0", true, 0, 0},
      {"(12", "-1", false, 1, 1},      {"'", "0", true, 0, 0},
      {"-1E+2", "-100", false, 1, 3},  {"1E12", "100", true, 0, 3},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      const type_CleanUp clean = Clean_Up_Number(Localized(c.number), true, true);
      EXPECT_EQ(clean.NumClean, Localized(c.clean)) << c.number;
      EXPECT_EQ(clean.Positive, c.positive) << c.number;
      EXPECT_EQ(clean.DecPos, c.position) << c.number;
      EXPECT_EQ(clean.NumNonZeroCharsLeftOfDec, c.counted) << c.number;
      EXPECT_FALSE(clean.IsError) << c.number;
    }
  });
}

TEST(CleanUpNumber, AnswersWithATokenForWhatIsNoNumber) {
  const struct {
    const char* number;
    const char* token;
  } cases[] = {
      {"#VALUE!", "#VALUE!"},
      {"#NUM!", "#NUM!"},
      {"#DIV/0!", "#DIV/0!"},
      {"#N/A", "#NUM!"},
      {"-#VALUE!", "#NUM!"},
      {"1.2.3", "#NUM!"},
      {"1.2.3E+1", "#NUM!"},
      {"abc", "#NUM!"},
      {"+5", "#NUM!"},
      {"5)", "#NUM!"},
      {"--5", "#NUM!"},
      {" 5", "#NUM!"},
      {"1E5", "#VALUE!"},
      {"E+5", "#VALUE!"},
      {"'5", "#VALUE!"},
      {"\"5'", "#VALUE!"},
      {"1E+-3", "#VALUE!"},
      {"1E+x", "#VALUE!"},
      {"'", "0"},
      {"5'", "#NUM!"},
      {"1e+5", "#NUM!"},
      {"$'5'", "#NUM!"},
      {"..", "#NUM!"},
      {"'..'", "#NUM!"},
      {"\xFF", "#NUM!"},
      {"5\xE2", "#NUM!"},
      {"'\xE2\x80", "#VALUE!"},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      const type_CleanUp clean = Clean_Up_Number(Localized(c.number), true, true);
      EXPECT_EQ(clean.NumClean, c.token) << c.number;
      EXPECT_EQ(clean.IsError, c.token[0] == '#') << c.number;
    }
  });
}

}  // namespace
}  // namespace quorvex
