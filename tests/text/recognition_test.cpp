// Recognition, comparison and formatting of texts in any dress agree with addition.
#include "text/recognition.h"

#include <gtest/gtest.h>

#include "arith/operation/do_operation.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "text/compare_numbers.h"
#include "text/options.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

bool Addition_Accepts(const std::string& text) {
  const HostValue all = maximum_digits;
  const NumberText sum = Do_Operation(operation::add, text, 0, {.maximum_significant_digits = all},
                                      {.intermediate = true});
  return !Has_Token_Mark(sum);
}

TEST(Recognition, TellsWhatAdditionAccepts) {
  constexpr unsigned seed = 21;
  Random_Numbers random(seed);
  int numbers = 0;
  In_Each_Locale([&] {
    for (int round = 0; round < 20000; ++round) {
      const std::string text = Localized(random.marks());
      const bool is_number = Is_Number_Text(text);
      numbers += is_number ? 1 : 0;
      ASSERT_EQ(is_number, !Is_Lone_Mark(text) && Addition_Accepts(text))
          << "seed " << seed << ": " << text;
      const HostValue compared = Compare_Numbers(text, text, true, false);
      ASSERT_TRUE(!Is_True(compared) || is_number) << text;
    }
  });
  EXPECT_GT(numbers, 4000);  // so that both answers are tried
}

TEST(Recognition, NeedsNoMemoryForTheZerosOfAnExponent) {
  const Memory_Guard poor(0);
  EXPECT_TRUE(Is_Number_Text("1E+2147483647"));
  EXPECT_TRUE(Is_Number_Text("-1.5E-2000000000"));
}

TEST(CompareDigitStrings, TakesTheLongerForTheGreater) {
  const struct {
    const char* text1;
    const char* text2;
    bool greater, equal;
  } cases[] = {{"10", "9", true, false},   {"010", "9", true, false},   {"9", "10", false, false},
               {"12", "12", false, true},  {"", "", false, true},       {"13", "12", true, false},
               {"12", "13", false, false}, {"abd", "abc", true, false}, {"0", "", true, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(Compare_Digit_Strings(c.text1, c.text2, false, true), c.greater) << c.text1;
    EXPECT_EQ(Compare_Digit_Strings(c.text1, c.text2, true, false), c.equal) << c.text1;
    EXPECT_EQ(Compare_Digit_Strings(c.text1, c.text2, true, true), c.greater || c.equal);
    EXPECT_FALSE(Compare_Digit_Strings(c.text1, c.text2, false, false));
  }
}

}  // namespace
}  // namespace quorvex
