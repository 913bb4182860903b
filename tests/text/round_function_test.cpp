// Rounding against exact decimals.
#include "text/round_function.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/exact_decimal.h"
#include "support/localized.h"
#include "support/random_numbers.h"

namespace quorvex {
namespace {

constexpr Rounding_Direction directions[] = {Rounding_Direction::nearest, Rounding_Direction::up,
                                             Rounding_Direction::down};

NumberText Round(const std::string& number, double places, Rounding_Direction direction) {
  return Round_Function(number, places, direction, {});
}

// A number cut behind a place, what was cut off, and a one in that place.
struct Cut {
  std::string kept;
  std::string dropped;
  std::string unit;
};

Cut Cut_Decimals(const std::string& number, std::size_t places) {
  const std::size_t separator = std::min(number.find('.'), number.size());
  const std::size_t end = std::min(number.size(), separator + 1 + places);
  std::string unit = places == 0 ? "1" : "0." + std::string(places - 1, '0') + "1";
  if (number.front() == '-') unit.insert(0, 1, '-');
  return {number.substr(0, end), number.substr(end), unit};
}

Cut Cut_Integer(const std::string& number, std::size_t zeros) {
  const std::size_t end = number.size() - zeros;
  std::string unit = "1" + std::string(zeros, '0');
  if (number.front() == '-') unit.insert(0, 1, '-');
  return {number.substr(0, end) + std::string(zeros, '0'), number.substr(end), unit};
}

std::string Expected(const Cut& cut, Rounding_Direction direction) {
  const bool drops = cut.dropped.find_first_of("123456789") != std::string::npos;
  const bool drops_half = !cut.dropped.empty() && cut.dropped.front() >= '5';
  const bool counts_up = direction == Rounding_Direction::nearest ? drops_half : drops;
  const Exact_Decimal kept(cut.kept);
  if (!counts_up || direction == Rounding_Direction::down) return kept.text();
  return (kept + Exact_Decimal(cut.unit)).text();
}

TEST(Rounding, ToDecimalsIsThatOfExactNumbers) {
  In_Each_Locale([] {
    Random_Numbers random(71);
    for (int round = 0; round < 3000; ++round) {
      const std::string number = random.number(round % 20 == 0 ? 3000 : 30);
      if (Exact_Decimal(number).sign() == 0) continue;
      const std::size_t places = random.below(40);
      for (const Rounding_Direction direction : directions) {
        std::string expected = Expected(Cut_Decimals(number, places), direction);
        ASSERT_EQ(Round(Localized(number), static_cast<double>(places), direction),
                  Localized(expected))
            << number << " to " << places;
      }
    }
  });
}

TEST(Rounding, ToPowersOfTenActsOnePlaceShort) {
  Random_Numbers random(72);
  for (int round = 0; round < 3000; ++round) {
    std::string number = std::to_string(1 + random.below(9)) + random.digits(2 + random.below(40));
    const std::size_t zeros = random.below(number.size() - 1);
    // Up, a nine before zeros is counted up; that has its own cases.
    if (number[number.size() - zeros - 1] == '9') number[number.size() - zeros - 1] = '8';
    if (random.one_in(2)) number.insert(0, 1, '-');
    for (const Rounding_Direction direction : directions) {
      ASSERT_EQ(Round(number, -1.0 - static_cast<double>(zeros), direction),
                Expected(Cut_Integer(number, zeros), direction))
          << number << " to " << zeros << " zeros";
    }
  }
}

TEST(Rounding, WritesNoMoreThan32765Zeros) {
  const std::string longest(32766, '7');
  EXPECT_EQ(Round(longest.substr(1), -32766, Rounding_Direction::nearest),
            "1" + std::string(32765, '0'));
  EXPECT_EQ(Round(longest, -32767, Rounding_Direction::nearest), "#VALUE!");
  EXPECT_EQ(Round(longest, -32767, Rounding_Direction::up), "1" + std::string(32766, '0'));
  EXPECT_EQ(Round(longest, -32767, Rounding_Direction::down), "0");
}

}  // namespace
}  // namespace quorvex
