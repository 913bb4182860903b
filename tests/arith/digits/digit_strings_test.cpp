// Sums and differences of bare digit strings.
#include <gtest/gtest.h>

#include "arith/digits/add_digits.h"
#include "arith/digits/subtract_digits.h"
#include "support/failures.h"

namespace quorvex {
namespace {

TEST(SubtractDigits, TakesTheLongerForTheLarger) {
  const struct {
    const char* operand1;
    const char* operand2;
    const char* difference;
    bool negative;
  } cases[] = {
      {"1000", "1", "999", false}, {"1", "1000", "999", true},
      {"225", "225", "0", false},  {"150", "225", "75", true},
      {"100", "099", "1", false},  {"099", "100", "1", true},
      {"000", "000", "0", false},  {"", "", "0", false},
      {"5", "", "5", false},       {"", "5", "5", true},
      {"0", "", "0", false},       {"007", "007", "0", false},
      {"0010", "3", "7", false},   {"100000000000000000", "1", "99999999999999999", false},
  };
  for (const auto& c : cases) {
    const type_Subtraction plain = Subtract_Digits(c.operand1, c.operand2, false);
    EXPECT_EQ(plain.Difference, c.difference) << c.operand1 << ' ' << c.operand2;
    EXPECT_EQ(plain.NegativeSubtraction, c.negative) << c.operand1 << ' ' << c.operand2;
    const type_Subtraction with_sign = Subtract_Digits(c.operand1, c.operand2, true);
    EXPECT_EQ(with_sign.Difference, (c.negative ? "-" : "") + std::string(c.difference));
    EXPECT_EQ(with_sign.NegativeSubtraction, c.negative);
  }
}

TEST(DigitStrings, FailForWhatIsNoDigit) {
  for (const char* text : {"12a", "-5", "1.5", " ", "1234567890123456789:", "/123456789012345",
                           "1234567890123456\xB2"}) {
    for (const char* other : {"", "5", "123456789012345678901234567890"}) {
      EXPECT_EQ(Failure_Of([&] { Add_Digits(text, other); }), Failure_Number::type_mismatch);
      EXPECT_EQ(Failure_Of([&] { Add_Digits(other, text); }), Failure_Number::type_mismatch);
      EXPECT_EQ(Failure_Of([&] { Subtract_Digits(text, other, false); }),
                Failure_Number::type_mismatch);
      EXPECT_EQ(Failure_Of([&] { Subtract_Digits(other, text, true); }),
                Failure_Number::type_mismatch);
    }
  }
}

}  // namespace
}  // namespace quorvex
