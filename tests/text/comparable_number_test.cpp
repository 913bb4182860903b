// Numbers read once, beside the comparison that writes both of them out.
#include "text/comparable_number.h"

#include <gtest/gtest.h>

#include <compare>
#include <iterator>
#include <string>

#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "text/compare_numbers.h"
#include "text/recognition.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

void Expect_As_Written_Out(const std::string& text1, const std::string& text2) {
  Comparable_Number number1;
  Comparable_Number number2;
  const bool are_read = number1.read(text1) && number2.read(text2);
  const HostValue equal = Compare_Numbers(text1, text2, true, false);
  ASSERT_EQ(are_read, !equal.is_text()) << text1 << ' ' << text2;
  ASSERT_EQ(number1.is_number(), Is_Number_Text(text1)) << text1;
  if (!are_read) return;
  ASSERT_EQ(std::is_eq(number1 <=> number2), equal.boolean()) << text1 << ' ' << text2;
  ASSERT_EQ(std::is_gt(number1 <=> number2), Is_True(Compare_Numbers(text1, text2, false, true)))
      << text1 << ' ' << text2;
}

// Few values, each in many spellings: plain with zeros around, or with an exponent.
std::string Random_Spelling(Random_Numbers& random) {
  static const char* const all_digits[] = {"1", "15", "150", "1005", "9", "99", "0", "001"};
  std::string digits = all_digits[random.below(std::size(all_digits))];
  std::string zeros(random.below(6), '0');
  if (random.one_in(2)) {
    if (digits.size() > 1 && random.one_in(2)) digits.insert(1 + random.below(digits.size()), ".");
    digits += "E";
    digits += random.one_of("+-") + zeros.substr(0, 2) + std::to_string(random.below(8));
  } else if (random.one_in(2)) {
    digits = (random.one_in(2) ? "0." : ".") + zeros + digits;
  } else {
    digits += zeros + (random.one_in(2) ? "." + zeros : "");
  }
  switch (random.below(4)) {
    case 0:
      return Localized("-" + digits);
    case 1:
      return Localized("($" + digits + ")");
    default:
      return Localized(digits);
  }
}

TEST(ComparableNumber, HasTheOrderOfNumbersWrittenOut) {
  In_Each_Locale([] {
    for (unsigned seed = 0; seed < 10000 && !testing::Test::HasFatalFailure(); ++seed) {
      Random_Numbers random(seed);
      Expect_As_Written_Out(Random_Spelling(random), Random_Spelling(random));
      Expect_As_Written_Out(Random_Spelling(random), Localized(random.marks()));
    }
  });
}

TEST(ComparableNumber, NeedsNoMemoryForTheZerosOfAnExponent) {
  const Memory_Guard poor(0);
  Comparable_Number small;
  Comparable_Number great;
  ASSERT_TRUE(small.read("-9E-2000000000"));
  ASSERT_TRUE(great.read("1E-2000000001"));
  EXPECT_TRUE(std::is_lt(small <=> great));
  ASSERT_TRUE(small.read("9.99E+1999999999"));
  ASSERT_TRUE(great.read("0010E+2000000001"));
  EXPECT_TRUE(std::is_lt(great <=> small));
  // With one parenthesis only, the last digit written is taken for the other.
  EXPECT_EQ(Failure_Of([&] { small.read("(5E+2000000000"); }), Failure_Number::out_of_memory);
}

}  // namespace
}  // namespace quorvex
