// Square roots against exact whole ones, biased to where quotient and mean are neighbours that
// don't meet: next to squares, and next to 1 at every scale.
#include "arith/powers/mean_root.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "arith/do_operation.h"
#include "support/localized.h"
#include "support/random_numbers.h"

namespace quorvex {
namespace {

NumberText Square_Root(const NumberText& radicand, std::size_t limit) {
  const HostValue digits = static_cast<double>(limit);
  return Do_Operation(operation::root, radicand, "2", {.maximum_significant_digits = digits},
                      {.intermediate = true});
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

std::string To_Text(mpz_srcptr number) {
  std::string text(mpz_sizeinbase(number, 10) + 2, '\0');
  mpz_get_str(text.data(), 10, number);
  text.resize(text.find('\0'));
  return text;
}

// The digits of a positive result that the limit asks for: a 0 before the separator is one.
std::size_t Digits_Asked_For(const std::string& result, std::size_t limit) {
  return result.front() == '0' ? limit - 1 : limit;
}

// How far the result is from the root, in units of the last digit that the limit asks for, rounded
// down; many for what is no number.
unsigned long Distance(const std::string& result, const Decimal& radicand, std::size_t limit) {
  std::string digits = result;
  const std::size_t place = std::min(digits.find('.'), digits.size());
  const std::size_t decimals = digits.size() - std::min(digits.size(), place + 1);
  if (place < digits.size()) digits.erase(place, 1);
  mpz_t given;
  mpz_t root;
  mpz_t unit;
  mpz_inits(given, root, unit, nullptr);
  unsigned long units = 1000;
  if (mpz_set_str(given, digits.c_str(), 10) == 0) {
    // Both at a scale that has digits to spare.
    const std::size_t scale = 2 * limit + radicand.text().size() + decimals;
    mpz_ui_pow_ui(unit, 10, scale - decimals);
    mpz_mul(given, given, unit);
    mpz_set_str(root, radicand.digits.c_str(), 10);
    mpz_ui_pow_ui(unit, 10, 2 * scale + static_cast<std::size_t>(radicand.exponent));
    mpz_mul(root, root, unit);
    mpz_sqrt(root, root);
    const std::size_t digits_of_root = To_Text(root).size();
    mpz_ui_pow_ui(unit, 10, digits_of_root - Digits_Asked_For(result, limit));
    mpz_sub(root, root, given);
    mpz_tdiv_q(root, root, unit);
    units = static_cast<unsigned long>(std::labs(mpz_get_si(root)));
  }
  mpz_clears(given, root, unit, nullptr);
  return units;
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
  mpz_t square;
  mpz_init_set_str(square, ("1" + random.digits(random.below(25))).c_str(), 10);
  mpz_mul(square, square, square);
  if (random.one_in(2)) {
    mpz_add_ui(square, square, 1 + random.below(3));
  } else if (mpz_cmp_ui(square, 1) > 0) {
    mpz_sub_ui(square, square, 1);
  }
  Decimal number{To_Text(square), 2 * static_cast<long>(random.below(25)) - 40};
  mpz_clear(square);
  return number;
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
    ASSERT_LE(Distance(root, radicand, limit), 1U)
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
  EXPECT_EQ(Mean_Root("-2", "1", 11), "#NUM!");
}

}  // namespace
}  // namespace quorvex
