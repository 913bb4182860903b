// Sums and differences of the digits of decimals.
#include <gtest/gtest.h>

#include "arith/digits/add_digits.h"
#include "arith/digits/subtract_digits.h"

namespace quorvex {
namespace {

TEST(AddDecimals, KeepsLeadingZeros) {
  const struct {
    Decimal_Parts operand1;
    Decimal_Parts operand2;
    const char* sum;
  } cases[] = {
      {{"999", ""}, {"1", ""}, "1000"},  {{"5", ""}, {"", ""}, "5"},
      {{"", ""}, {"", ""}, ""},          {{"007", ""}, {"05", ""}, "012"},
      {{"0999", ""}, {"1", ""}, "1000"}, {{"99999999", ""}, {"1", ""}, "100000000"},
      {{"1", "5"}, {"2", "25"}, "375"},  {{"9", "75"}, {"", "25"}, "1000"},
      {{"", "5"}, {"", "05"}, "55"},     {{"", "99999999"}, {"", "00000001"}, "100000000"}};
  for (const auto& c : cases) {
    EXPECT_EQ(Add_Decimals(c.operand1, c.operand2), c.sum);
    EXPECT_EQ(Add_Decimals(c.operand2, c.operand1), c.sum);
  }
}

TEST(SubtractDecimals, TellsWhichIsTheLarger) {
  const struct {
    Decimal_Parts operand1;
    Decimal_Parts operand2;
    const char* difference;
  } cases[] = {
      {{"1000", ""}, {"1", ""}, "999"},
      {{"100", ""}, {"099", ""}, "1"},
      {{"5", ""}, {"", ""}, "5"},
      {{"0010", ""}, {"3", ""}, "7"},
      {{"1", ""}, {"", "001"}, "999"},
      {{"2", "25"}, {"1", "5"}, "75"},
      {{"1", "5"}, {"1", "25"}, "25"},
      {{"100000000000000000", ""}, {"1", ""}, "99999999999999999"},
  };
  for (const auto& c : cases) {
    const type_Subtraction difference = Subtract_Decimals(c.operand1, c.operand2);
    EXPECT_EQ(difference.Difference, c.difference);
    EXPECT_FALSE(difference.NegativeSubtraction);
    const type_Subtraction opposite = Subtract_Decimals(c.operand2, c.operand1);
    EXPECT_EQ(opposite.Difference, c.difference);
    EXPECT_TRUE(opposite.NegativeSubtraction);
  }
  for (const Decimal_Parts zero : {Decimal_Parts{"", ""}, {"007", ""}, {"2", "25"}}) {
    EXPECT_EQ(Subtract_Decimals(zero, zero).Difference, "0");
    EXPECT_FALSE(Subtract_Decimals(zero, zero).NegativeSubtraction);
  }
}

}  // namespace
}  // namespace quorvex
