// Operations on short numbers, beside the road that all others take.
#include "arith/operation/short_operation.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "arith/do_operation.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/without_libraries.h"

namespace quorvex {
namespace {

std::optional<NumberText> Short(std::int16_t operation, const std::string& a, const std::string& b,
                                const HostValue& limit) {
  NumberText result;
  const bool is_short =
      Short_Operation(operation, a, b, {.maximum_significant_digits = limit}, false, result);
  return is_short ? std::optional(result) : std::nullopt;
}

NumberText Long(std::int16_t operation, const std::string& a, const std::string& b,
                const HostValue& limit) {
  return Do_Operation_On_Texts(operation, a, b,
                               Restrictionator({.maximum_significant_digits = limit}));
}

constexpr std::int16_t operations[] = {operation::add, operation::subtract, operation::multiply,
                                       operation::divide};

// Zeros around the digits, neighbours whose difference is short, and what is all nines.
std::string Random_Operand(Random_Numbers& random, const std::string& other) {
  std::string text = random.one_in(4) && !other.empty()
                         ? random.neighbour(other)
                         : random.number(random.one_in(8) ? 130 : 40);
  if (random.one_in(8)) text = "0";
  if (random.one_in(6)) text.insert(text.starts_with('-') ? 1 : 0, "000");
  if (random.one_in(6)) text += text.find('.') == std::string::npos ? ".00" : "00";
  if (random.one_in(12)) text.insert(0, 1, '-');
  return text;
}

HostValue Random_Limit(Random_Numbers& random) {
  switch (random.below(5)) {
    case 0:
      return Missing;
    case 1:
      return static_cast<double>(random.below(300)) / 2 - 3;
    case 2:
      return 2147483648.0;
    default:
      return static_cast<double>(random.below(60));
  }
}

TEST(ShortOperation, GivesWhatTheLongRoadGives) {
  std::size_t taken = 0;
  In_Each_Locale([&] {
    for (unsigned seed = 0; seed < 6000 && !testing::Test::HasFatalFailure(); ++seed) {
      Random_Numbers random(seed);
      const std::string first = Random_Operand(random, "");
      const std::string a = Localized(first);
      const std::string b = Localized(Random_Operand(random, first));
      const HostValue limit = Random_Limit(random);
      for (const std::int16_t operation : operations) {
        const auto result = Short(operation, a, b, limit);
        if (result) {
          ++taken;
          ASSERT_EQ(*result, Long(operation, a, b, limit)) << operation << ' ' << a << ' ' << b;
        }
      }
    }
  });
  EXPECT_GT(taken, 10'000U);
}

TEST(ShortOperation, LeavesAllElseToTheLongRoad) {
  NumberText result;
  for (const char* other : {"", "-", ".", "--1", "1.2.3", "1,000", "$1", "(1)", "'1'", "1E+2", " 1",
                            "+1", "1 ", "#VALUE!", "abc"}) {
    EXPECT_FALSE(Short(operation::add, other, "1", 10)) << other;
    EXPECT_FALSE(Short(operation::divide, "1", other, 10)) << other;
  }
  EXPECT_FALSE(Short_Operation(operation::add, "1", 2, {}, false, result));
  EXPECT_FALSE(
      Short_Operation(operation::add, "1", "2", {.format_thousands = true}, false, result));
  EXPECT_FALSE(Short_Operation(operation::power, "1", "2", {}, false, result));
  EXPECT_FALSE(Short(operation::add, "1", "2", "10"));
  EXPECT_FALSE(Short(operation::divide, "1", "3", 10.5));
  EXPECT_FALSE(Short(operation::divide, "1", "3", 2147483647.0));
}

TEST(ShortOperation, NeedsTheLibraryOfProductsWhereTheLongRoadDoes) {
  const Without_Libraries without;
  for (const std::int16_t operation : operations) {
    for (const char* b : {"0", "1", "7", "123456789012345678901234567890.5"}) {
      EXPECT_EQ(Short(operation, "7", b, 40), Long(operation, "7", b, 40)) << operation << ' ' << b;
    }
  }
}

}  // namespace
}  // namespace quorvex
