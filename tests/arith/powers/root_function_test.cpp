// Roots against exact powers of whole numbers, and the ways their iterations end.
#include "arith/powers/root_function.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "arith/powers/mean_root.h"
#include "arith/powers/newton_root.h"
#include "arith/powers/power_function.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/text_steps.h"
#include "support/whole_number.h"

namespace quorvex {
namespace {

// Whether the root lies within one unit of the place `count` of a positive result.
bool Is_Root_To(const std::string& result, const std::string& radicand, std::size_t degree,
                std::size_t count) {
  const Scaled_Digits root_digits(result);
  const Scaled_Digits given(radicand);
  const Whole_Number root = root_digits.number();
  const std::size_t digits = root.text().size();
  const Whole_Number unit = Whole_Number::Ten_To(digits > count ? digits - count : 0);
  // At the scale of degree times the result's decimals and those of the radicand.
  const auto power = [&](const Whole_Number& bound) {
    return Whole_Number::Power(bound, degree) * Whole_Number::Ten_To(given.decimals);
  };
  const Whole_Number exact = given.number() * Whole_Number::Ten_To(root_digits.decimals * degree);
  return !(exact < power(root - unit)) && !(power(root + unit) < exact);
}

NumberText Root(const NumberText& radicand, const NumberText& degree, double limit) {
  return Text_Steps{limit}.root(radicand, degree);
}

std::string Random_Radicand(Random_Numbers& random) {
  std::string text = std::to_string(1 + random.below(9)) + random.digits(random.below(40));
  if (random.one_in(3)) text += "." + random.digits(1 + random.below(20));
  if (random.one_in(6)) text = "0." + std::string(random.below(50), '0') + "3" + random.digits(12);
  return text;
}

TEST(Roots, AreRightToThePlaceBeforeTheLimit) {
  Random_Numbers random(71);
  for (int round = 0; round < 1500; ++round) {
    const std::string radicand = Random_Radicand(random);
    const std::size_t degree = random.one_in(2) ? 2 : 3 + random.below(12);
    const std::size_t limit = 4 + random.below(random.one_in(8) ? 300 : 40);
    const NumberText root = Root(radicand, std::to_string(degree), static_cast<double>(limit));
    ASSERT_TRUE(Is_Root_To(root, radicand, degree, limit - 1))
        << radicand << " degree " << degree << " at " << limit << ": " << root;
    if (degree % 2 == 0 || radicand.front() == '0') continue;
    // The minus takes the place of a digit where values are compared; and below 1 so does every
    // zero behind the separator.
    const NumberText opposite =
        Root("-" + radicand, std::to_string(degree), static_cast<double>(limit));
    ASSERT_EQ(opposite.front(), '-') << radicand << " degree " << degree << " at " << limit;
    ASSERT_TRUE(Is_Root_To(opposite.substr(1), radicand, degree, limit - 2))
        << radicand << " degree " << degree << " at " << limit << ": " << opposite;
  }
}

// Floats begin with the very root where one by the degree is a float, so that nothing moves.
TEST(Roots, OfPowersWithShortRootsAreExact) {
  Random_Numbers random(72);
  for (int round = 0; round < 600; ++round) {
    const std::string root = std::to_string(2 + random.below(8)) + random.digits(random.below(11));
    const std::size_t degree = std::size_t{2} << random.below(3);
    const std::string power = Whole_Number::Power(Whole_Number(root), degree).text();
    const auto limit = static_cast<double>(root.size() + 1 + random.below(30));
    ASSERT_EQ(Root(power, std::to_string(degree), limit), root) << power << " degree " << degree;
  }
}

TEST(Roots, AreTheSameInEveryLocale) {
  Random_Numbers random(73);
  for (int round = 0; round < 60; ++round) {
    const std::string radicand = Random_Radicand(random);
    const std::string degree = random.one_in(2) ? "2" : random.one_in(2) ? "3" : "1.5";
    const auto limit = static_cast<double>(2 + random.below(30));
    const NumberText expected = Root(radicand, degree, limit);
    In_Each_Locale([&] {
      ASSERT_EQ(Root(Localized(radicand), Localized(degree), limit), Localized(expected))
          << radicand << " degree " << degree << " at " << limit;
    });
    // A separator of several bytes is one character all the same.
    const Locale_Guard guard({"\u066B", "\u066C", "$", Currency_Side::before});
    ASSERT_EQ(Root(Localized(radicand), Localized(degree), limit), Localized(expected));
  }
}

TEST(Roots, TakeTheirGuardDigitsFromTheCaller) {
  const HostValue limit = 5;
  const auto root = [&](const HostValue& working_digits, bool restricted) {
    return Do_Operation(operation::root, "7", "3", {.maximum_significant_digits = limit},
                        {.restrict_input_lengths = restricted, .working_digits = working_digits});
  };
  EXPECT_EQ(root(Missing, true), "1.912931");
  constexpr double half_the_ceiling = 1073741824;
  EXPECT_EQ(root(half_the_ceiling + 1, true), "#NUM!");
  EXPECT_EQ(root(-3, false), "1.913");
}

class Fixed_Clock final : public Clock {
 public:
  explicit Fixed_Clock(double time) : time_(time) {}
  double time_of_day() override { return time_; }

 private:
  double time_;
};

TEST(NewtonRoot, BeginsAnewFromTheTimeOfDay) {
  // (0.5 - 1) 1 + 0.5 / 1^-0.5 is 0.
  const auto root_at = [](double time) {
    const auto before =
        std::exchange(Current_Platform().clock, std::make_shared<Fixed_Clock>(time));
    NumberText root = Plain_Text(
        Newton_Root(Step_Number(0.5), Step_Number(0.5), Step_Number(1), {10, 20}, Power));
    Current_Platform().clock = before;
    return root;
  };
  EXPECT_EQ(root_at(0.2).substr(0, 10), "0.24999999");
  EXPECT_EQ(root_at(0.25), "0.25");
  EXPECT_EQ(root_at(0), "#DIV/0!");
}

TEST(NewtonRoot, OfWhatHasNoneEndsWhereValuesComeBack) {
  // A fourth root of -1 is nowhere on the line: the values leap about until one comes back.
  EXPECT_EQ(Newton_Root(Step_Number(-1), Step_Number(4), Step_Number(0.5), {4, 3}, Power).digits,
            "#NUM!");
  EXPECT_EQ(Failure_Of([] {
              Newton_Root(Step_Number(-1), Step_Number(4), Step_Number(0.5), {20, 2}, Power);
            }),
            Failure_Number::too_complex);
}

TEST(Roots, CanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Root("2", "2", 10); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Root("2", "3", 10); }), Failure_Number::interrupted);
  EXPECT_EQ(Failure_Of([] { Mean_Root(Step_Number(2), Step_Number(1), 100000); }),
            Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
