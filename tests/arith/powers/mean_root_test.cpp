// Square roots against exact whole ones, biased to where quotient and mean are neighbours that
// don't meet: next to squares, and next to 1 at every scale.
#include "arith/powers/mean_root.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/text_steps.h"
#include "support/whole_number.h"

namespace quorvex {
namespace {

NumberText Square_Root(const NumberText& radicand, std::size_t limit) {
  return Text_Steps{static_cast<double>(limit)}.root(radicand, "2");
}

// A whole number times a power of ten, as text.
struct Decimal {
  std::string digits;
  long exponent = 0;

  std::string text() const {
    std::string plain = digits;
    if (exponent >= 0) return plain.append(static_cast<std::size_t>(exponent), '0');
    const auto decimals = static_cast<std::size_t>(-exponent);
    if (plain.size() <= decimals) plain.insert(0, decimals + 1 - plain.size(), '0');
    return plain.insert(plain.size() - decimals, ".");
  }
};

// The digits of a positive result that the limit asks for: a 0 before the separator is one.
std::size_t Digits_Asked_For(const std::string& result, std::size_t limit) {
  return result.front() == '0' ? limit - 1 : limit;
}

// Whether a positive result is less than two units of the last digit that the limit asks for from
// the root.
bool Is_Near_Root(const std::string& result, const Decimal& radicand, std::size_t limit) {
  if (result.find_first_not_of("0123456789.") != std::string::npos) return false;
  const Scaled_Digits given(result);
  // Both at a scale that has digits to spare.
  const std::size_t scale = 2 * limit + radicand.text().size() + given.decimals;
  const std::size_t zeros = 2 * scale + static_cast<std::size_t>(radicand.exponent);
  const Whole_Number root =
      Whole_Number::Square_Root(Whole_Number(radicand.digits) * Whole_Number::Ten_To(zeros));
  const std::size_t behind = root.text().size() - Digits_Asked_For(result, limit);
  const Whole_Number units = Whole_Number("2") * Whole_Number::Ten_To(behind);
  const Whole_Number shown = given.number() * Whole_Number::Ten_To(scale - given.decimals);
  return root < shown + units && shown < root + units;
}

// 1 and a trace, or less it, times a power of a hundred and perhaps a small square.
Decimal Next_To_One(Random_Numbers& random) {
  const std::size_t places = 1 + random.below(60);
  Decimal number;
  if (random.one_in(2)) {
    number.digits = std::to_string((1 + random.below(9)) * (1 + random.below(9)));
    number.digits += std::string(places - 1, '0') + random.one_of("125");
  } else {
    number.digits = std::string(places, '9');
  }
  number.exponent = 2 * static_cast<long>(random.below(25)) - 24 - static_cast<long>(places);
  return number;
}

Decimal Next_To_A_Square(Random_Numbers& random) {
  const Whole_Number root("1" + random.digits(random.below(25)));
  const Whole_Number square = root * root;
  const Whole_Number nudge(std::to_string(1 + random.below(3)));
  const bool is_above = random.one_in(2) || square < Whole_Number("4");
  return {(is_above ? square + nudge : square - nudge).text(),
          2 * static_cast<long>(random.below(25)) - 40};
}

Decimal Short_Number(Random_Numbers& random) {
  return {std::to_string(1 + random.below(99999)), static_cast<long>(random.below(60)) - 30};
}

Decimal Radicand(Random_Numbers& random, int round) {
  switch (round % 3) {
    case 0:
      return Next_To_One(random);
    case 1:
      return Next_To_A_Square(random);
    default:
      return Short_Number(random);
  }
}

TEST(MeanRoot, IsRightToTheLastTwoDigits) {
  constexpr int rounds = 20000;
  Random_Numbers random(13);
  for (int round = 0; round < rounds; ++round) {
    const Decimal radicand = Radicand(random, round);
    const std::size_t limit = 5 + random.below(random.one_in(2) ? 116 : 20);
    const NumberText root = Square_Root(radicand.text(), limit);
    ASSERT_TRUE(Is_Near_Root(root, radicand, limit))
        << radicand.text() << " at " << limit << ": " << root;
  }
}

// Not many digits are left to be right here; but there is a number, and soon.
TEST(MeanRoot, ComesToAnEndAtTheSmallestLimits) {
  Random_Numbers random(14);
  for (int round = 0; round < 2000; ++round) {
    const Decimal radicand = Radicand(random, round);
    const std::size_t limit = random.below(5);
    const NumberText root = Square_Root(radicand.text(), limit);
    ASSERT_EQ(root.find_first_not_of("0123456789."), std::string::npos)
        << radicand.text() << " at " << limit << ": " << root;
  }
}

TEST(MeanRoot, OfNeighboursIsTheSameInEveryLocale) {
  struct Case {
    const char* radicand;
    std::size_t limit;
    const char* root;
  };
  constexpr Case cases[] = {
      // They end alike by chance long before the limit.
      {"9999999999999999", 30, "99999999.999999994999999999999999"},
      {"1.00000000000001", 20, "1.000000000000005"},
      // They never meet: the quotient is cut.
      {"90000000000000000000000000000000", 15, "9486832980505138"},
      {"1.00000000000000001", 15, "1"},
      {"0.9999999999999999", 12, "0.99999999999"},
      // They never meet, but one is the other one rounded.
      {"0.0000000000000000999999999999999999", 14, "0.00000001"},
  };
  for (const Case& each : cases) {
    In_Each_Locale([&] {
      EXPECT_EQ(Square_Root(Localized(each.radicand), each.limit), Localized(each.root));
    });
    const Locale_Guard guard({"\u066B", "\u066C", "$", Currency_Side::before});
    EXPECT_EQ(Square_Root(Localized(each.radicand), each.limit), Localized(each.root));
  }
}

TEST(MeanRoot, OfWhatHasNoneIsAToken) {
  EXPECT_EQ(Mean_Root(Step_Number(-2), Step_Number(1), 11).digits, "#NUM!");
}

}  // namespace
}  // namespace quorvex
