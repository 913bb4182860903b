// Contracts are looked at in builds for finding faults, and in no others.
#include "expects.h"

#include <gtest/gtest.h>

#include "arith/digits/digit_spans.h"
#include "arith/division/recip_divide.h"
#include "arith/fractions/exact_divisor.h"
#include "arith/fractions/fraction_scale.h"
#include "arith/limbs/column_words.h"
#include "arith/limbs/limb_number.h"
#include "text/decimal.h"

namespace quorvex {
namespace {

bool Note_Call(int& calls) {
  ++calls;
  return true;
}

TEST(Contracts, AreLookedAtWhereTheBuildSaysSo) {
  int calls = 0;
  Expects(Note_Call(calls));
#if defined(QUORVEX_CONTRACTS)
  EXPECT_EQ(calls, 1);
#else
  EXPECT_EQ(Note_Call(calls) ? calls : 0, 1);
#endif
}

#if defined(QUORVEX_CONTRACTS)

TEST(ContractsDeathTest, EndTheProgramWhereTheyAreBroken) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  limbs::Number number = *limbs::Read_Canonical("12.5");
  EXPECT_DEATH(number.store.fill(number.data() + 1, 1), "owns");
  EXPECT_DEATH(limbs::Leading_Power({}), "is_zero");
  EXPECT_DEATH(columns::Divisor(1), "number >= 2");
  char digits[] = "123456789";
  EXPECT_DEATH(digit_spans::Add(digits + 1, digits, digits, 8, false), "Can_Be_Output");
  EXPECT_DEATH(Divide_Digits("7", "03", 10), "Are_Significant");
  EXPECT_DEATH(Exact_Divisor("0", "00"), "Count_Leading_Zeros");
  EXPECT_DEATH(Scale_To_Whole("1.5", "1,000"), "Is_Plain");
  EXPECT_DEATH(Plain_Text({"10"}), "Is_Stripped");
}

#endif

}  // namespace
}  // namespace quorvex
