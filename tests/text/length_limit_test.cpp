// The length of results.
#include "text/length_limit.h"

#include <gtest/gtest.h>

#include "support/localized.h"
#include "text/options.h"

namespace quorvex {
namespace {

// Cuts a text to so many characters.
std::string Cut_To(std::string text, double characters) {
  Limit_Text_Length(text, longest_cell_text - (maximum_digits - characters));
  return text;
}

TEST(LimitTextLength, CutsFractionsAndMantissasOnly) {
  const struct {
    const char* text;
    double limit;
    const char* expected;
  } cases[] = {
      {"3.14159", 7, "3.14159"},
      {"3.14159", 4, "3.14"},
      {"3.14159", 5, "3.141"},
      {"2.99999", 4, "3.00"},  // rounded one digit behind the cut, and the carry walks
      {"2.99994", 4, "2.99"},
      {"0.00123", 4, "0.00"},
      {"1234.56", 5, "1234."},
      {"1234.56", 6, "1234.5"},
      {"12345.6", 5, "#VALUE!"},
      {"12345678", 8, "12345678"},
      {"12345678", 7, "#VALUE!"},
      {"1.23456E+10", 11, "1.23456E+10"},
      {"1.23456E+10", 8, "1.23E+10"},
      {"1.23456E+10", 5, "1E+10"},
      {"1.23456E+10", 4, "E+10"},
      {"1.23456E+10", 3, "#VALUE!"},
      {"9.99999E-5", 7, "10.0E-5"},
      {"", 0, ""},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(Cut_To(Localized(c.text), c.limit), Localized(c.expected))
          << c.text << " to " << c.limit;
    }
  });
}

TEST(LimitTextLength, LeavesWhatACellCouldHold) {
  std::string text(40000, '7');
  Limit_Text_Length(text, longest_cell_text - 2);
  EXPECT_EQ(text, std::string(40000, '7'));
}

}  // namespace
}  // namespace quorvex
