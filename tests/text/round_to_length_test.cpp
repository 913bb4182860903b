// Rounding by characters.
#include "text/round_to_length.h"

#include <gtest/gtest.h>

#include "support/localized.h"
#include "support/random_numbers.h"

namespace quorvex {
namespace {

TEST(RoundToLength, KeepsSoManyCharactersAndFillsWhatItCuts) {
  const struct {
    const char* num;
    double n;
    const char* expected;
  } cases[] = {
      {"12349999", 3, "12300000"},  // the first dropped digit alone decides
      {"123456", 3, "123000"},
      // with a separator, which does not count
      {"1.995", 3, "2.000"},
      {"9.995", 3, "10.000"},
      {"12.345", 3, "12.300"},
      {"12.345", 5, "12.345"},
      {"9.9", 1, "9"},
      {"123.", 3, "123"},
      {"123.", 4, "123."},
      // zeros behind "0." do not count either, the "0" before it does
      {"0.001234", 3, "0.001200"},
      {"0.001294", 3, "0.001300"},
      {"0.009999", 3, "0.010000"},
      {"0.1234", 1, "0"},
      {"1.001234", 3, "1.000000"},
      {"00.01234", 3, "00.00000"},
      // the separator beyond the count: the fraction is thrown away unrounded
      {"123.99", 3, "123"},
      {"12.99", 1, "10"},
      {"99.5", 1, "100"},
      {"5.9", 1, "5"},
      {".59", 1, ".60"},
      // a second separator is passed over where a digit is looked for
      {"1.2.5", 2, "1.300"},
      {"1.2.5", 3, "1.2.5"},
      {"1.2.56", 3, "1.2600"},
      // counts are made whole, halves to even
      {"123456", 2.5, "120000"},
      {"123456", 3.5, "123500"},
      {"123456", 0.5, "#VALUE!"},
      {"123456", 1e300, "123456"},
      // nothing to keep, and no digit where one is read
      {"123", 0, "#VALUE!"},
      {"1.5", -3, "#VALUE!"},
      {"12a4", 2, "#VALUE!"},
      {"1a54", 2, "#VALUE!"},
      {"a999", 2, "#VALUE!"},
      {"1a34", 2, "1a00"},
      {"a994", 3, "a990"},
      {"abc", 3, "abc"},
      {"", 1, ""},
      {"", 0, ""},
  };
  In_Each_Locale([&] {
    for (const auto& c : cases) {
      EXPECT_EQ(Round_To_Length(Localized(c.num), c.n), Localized(c.expected))
          << c.num << " to " << c.n;
    }
  });
}

// Rounding of digits the plain way: cut, and count up from the right.
std::string Round_Plainly(std::string digits, std::size_t n) {
  if (digits.size() <= n) return digits;
  const std::size_t length = digits.size();
  const bool up = digits[n] >= '5';
  digits.resize(n);
  std::size_t place = n;
  while (up && place > 0 && digits[place - 1] == '9') digits[--place] = '0';
  if (up && place > 0) ++digits[place - 1];
  digits.append(length - n, '0');
  return up && place == 0 ? "1" + digits : digits;
}

TEST(RoundToLength, RoundsLongDigitsAsCountingByHandDoes) {
  constexpr unsigned seed = 11;
  Random_Numbers random(seed);
  for (int round = 0; round < 3000; ++round) {
    const std::string digits = random.digits(1 + random.length(3000));
    const std::size_t n = 1 + random.below(digits.size() + 1);
    ASSERT_EQ(Round_To_Length(digits, static_cast<double>(n)), Round_Plainly(digits, n))
        << "seed " << seed << " round " << round << ": " << digits << " to " << n;
  }
}

}  // namespace
}  // namespace quorvex
