// Powers against products of whole texts, which is what they are defined by, and against GMP.
#include "arith/powers/power_function.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "arith/do_operation.h"
#include "arith/powers/exponent_split.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/text_steps.h"
#include "support/whole_number.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

NumberText Operate(std::int16_t code, const NumberText& a, const NumberText& b, double limit) {
  return Text_Steps{limit}.of(code, a, b);
}

NumberText Power(const NumberText& base, const NumberText& exponent, double limit) {
  return Operate(operation::power, base, exponent, limit);
}

// The same powers in the plainest way: every intermediate value a text, every step a whole
// operation, every split searched by text.
class Power_By_Text {
 public:
  static NumberText at(const NumberText& base, const NumberText& exponent, double limit) {
    return With_Handler(
        [&] {
          // A sum with 0 rounds and formats at a limit as every operation does.
          return Operate(operation::add, function(base, exponent, limit + 1), "0", limit);
        },
        [](const Run_Time_Failure&) { return NumberText("#VALUE!"); });
  }

 private:
  static double length(const NumberText& number) {
    const bool has_separator = number.find(Decimal_Separator()) != NumberText::npos;
    return static_cast<double>(number.size() - (has_separator ? Decimal_Separator().size() : 0));
  }

  static bool is_split(const NumberText& n) {
    const HostValue answer = Compare_Numbers(n, "3", false, true);
    if (answer.is_text()) throw Run_Time_Failure(Failure_Number::type_mismatch, "no exponent");
    return answer.boolean();
  }

  static NumberText function(const NumberText& given_base, const NumberText& given_exponent,
                             double maxSD) {
    NumberText base = Clean_Up_Number(given_base, true, true).NumClean;
    NumberText exponent = Clean_Up_Number(given_exponent, true, true).NumClean;
    const double limit = maxSD + length(base) + length(exponent);
    if (exponent == "0") return "1";
    if (base == "0") return "0";
    if (base == "1") return "1";
    if (exponent == "1") return base;
    if (exponent.front() == '-') {
      base = Operate(operation::divide, "1", base, limit);
      exponent.erase(0, 1);
    }
    if (is_split(exponent)) return integer_power(base, exponent, maxSD);
    NumberText product = "1";
    for (int left = std::stoi(exponent); left > 0; --left) {
      product = Operate(operation::multiply, product, base, limit);
    }
    return product;
  }

  static NumberText partial(const NumberText& base, const NumberText& n, double maxSD) {
    return is_split(n) ? integer_power(base, n, maxSD) : at(base, n, maxSD);
  }

  static NumberText integer_power(const NumberText& base, const NumberText& n, double maxSD) {
    const Exponent_Split split = Split_Exponent_By_Steps(n, maxSD);
    const NumberText power = partial(partial(base, split.A, maxSD), split.B, maxSD);
    return Operate(operation::multiply, power, partial(base, split.C, maxSD), maxSD);
  }
};

TEST(Powers, AreThoseOfProductsOfTexts) {
  In_Each_Locale([] {
    Random_Numbers random(61);
    for (int round = 0; round < 400; ++round) {
      // Near 1 where the exponent is large, so that the texts stay short.
      const bool is_large = random.one_in(2);
      const NumberText base = Localized(
          is_large ? (random.one_in(2) ? "1.0" : "-0.99") + random.digits(30) : random.number(40));
      const std::size_t whole = random.below(is_large ? 100'000 : 60);
      const NumberText exponent = (random.one_in(4) ? "-" : "") + std::to_string(whole);
      const std::size_t most = random.one_in(2) ? 12 : random.one_in(4) ? 260 : 120;
      const auto limit = static_cast<double>(random.below(most));
      ASSERT_EQ(Power(base, exponent, limit), Power_By_Text::at(base, exponent, limit))
          << base << " ^ " << exponent << " at " << limit;
    }
  });
}

TEST(Powers, ThatFitTheLimitAreExact) {
  Random_Numbers random(62);
  for (int round = 0; round < 300; ++round) {
    const std::string base = std::to_string(2 + random.below(9)) + random.digits(random.below(40));
    const std::size_t exponent = random.below(300);
    ASSERT_EQ(Power(base, std::to_string(exponent), 20000),
              Whole_Number::Power(Whole_Number(base), exponent).text())
        << base << ' ' << exponent;
  }
}

TEST(Powers, ThatFitTheLimitAddTheirExponents) {
  Random_Numbers random(63);
  for (int round = 0; round < 200; ++round) {
    const NumberText base = random.number(12);
    const std::size_t a = random.below(120);
    const std::size_t b = random.below(120);
    ASSERT_EQ(Operate(operation::multiply, Power(base, std::to_string(a), 20000),
                      Power(base, std::to_string(b), 20000), 20000),
              Power(base, std::to_string(a + b), 20000))
        << base << ' ' << a << ' ' << b;
  }
}

TEST(Powers, TakeTheirGuardDigitsFromTheCaller) {
  const HostValue limit = 2;
  const auto power = [&](const HostValue& working_digits, bool restricted) {
    return Do_Operation(operation::power, "1.23456789", "3", {.maximum_significant_digits = limit},
                        {.restrict_input_lengths = restricted, .working_digits = working_digits});
  };
  EXPECT_EQ(power(Missing, true), "1.882");
  EXPECT_EQ(power(-1, true), "1.883");  // 1.235 * 1.23456789 is 1.525, and so on
  constexpr double half_the_ceiling = 1073741824;
  EXPECT_EQ(power(half_the_ceiling, true), "1.882");
  EXPECT_EQ(power(half_the_ceiling + 1, true), "#NUM!");
  EXPECT_EQ(power(half_the_ceiling + 1, false), "1.882");
}

TEST(Powers, CanBeBrokenOff) {
  const Interruption_Guard impatient;
  for (const char* const exponent : {"2", "1000", "99999999999999999999999999"}) {
    EXPECT_EQ(Failure_Of([&] { Power("1.5", exponent, 100); }), Failure_Number::interrupted);
  }
}

TEST(Powers, TakeNoMoreMemoryThanThereIs) {
  const Memory_Guard little(0);
  EXPECT_EQ(Power("2", "1000000000", 100), "#VALUE!");
  EXPECT_EQ(Power("0.5", "1000000000", 100), "#VALUE!");
  EXPECT_EQ(Power("2", "100000000000", 100), "#NUM!");
  EXPECT_EQ(Power("-1", "1000001", 100), "-1");
}

TEST(Powers, OfExponentsFarBeyondTheLimitEnd) {
  // Each split leaves a rest that is only some digits shorter than the exponent.
  const std::string exponent(300, '9');
  EXPECT_EQ(Power("2", exponent, 30), "#NUM!");
  EXPECT_EQ(Power("0.5", exponent, 30), "#VALUE!");
}

TEST(ExponentSplit, FindsTheCheapestOfTheHalves) {
  const struct {
    const char* n;
    const char* A;
    const char* B;
    const char* C;
  } cases[] = {{"4", "2", "2", "0"},  {"5", "2", "2", "1"},      {"7", "3", "2", "1"},
               {"31", "7", "4", "3"}, {"1000", "31", "32", "8"}, {"32", "8", "4", "0"}};
  for (const auto& c : cases) {
    const Exponent_Split split = Split_Exponent(c.n, 100);
    EXPECT_EQ(split.A + "*" + split.B + "+" + split.C, std::string(c.A) + "*" + c.B + "+" + c.C);
  }
}

NumberText Whole_Power_Of_Two(std::size_t exponent) {
  return Power("2", std::to_string(exponent), 100);
}

// Those that begin near the end of the search among them.
TEST(ExponentSplit, IsTheSameInRegistersAsByText) {
  Random_Numbers random(64);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t most = random.one_in(20) ? 90 : 18;
    NumberText n = std::to_string(1 + random.below(9)) + random.digits(random.below(most));
    if (n.size() == 1) n = "4";
    if (random.one_in(50)) n = Whole_Power_Of_Two(50 + random.below(150));
    const auto limit =
        static_cast<double>(n.size() + 4 - random.below(random.one_in(2) ? n.size() : 3));
    const Exponent_Split quick = Split_Exponent(n, limit);
    const Exponent_Split by_text = Split_Exponent_By_Steps(n, limit);
    ASSERT_EQ(quick.A, by_text.A) << n << " at " << limit;
    ASSERT_EQ(quick.B, by_text.B) << n << " at " << limit;
    ASSERT_EQ(quick.C, by_text.C) << n << " at " << limit;
  }
}

// Between steps, powers and roots are what operations on texts give.
TEST(PowerSteps, OfNumbersAreThoseOfTexts) {
  Random_Numbers random(77);
  constexpr double odd_limits[] = {-1, 0, 0.5, 7.5};
  constexpr double beyond_limbs = 1'000'001;
  for (int round = 0; round < 3000; ++round) {
    const double limit = random.one_in(600)  ? beyond_limbs
                         : random.one_in(12) ? odd_limits[random.below(std::size(odd_limits))]
                                             : static_cast<double>(1 + random.below(60));
    const NumberText base =
        random.one_in(20) ? NumberText(random.one_in(2) ? "#NUM!" : "0") : random.number(12);
    if (random.one_in(3)) {
      const NumberText degree = random.one_in(10) ? "0" : "2";
      const Step_Number root = Root(Step_Number(base), Step_Number(degree), Steps(limit));
      ASSERT_EQ(root.text(), Operate(operation::root, base, degree, limit))
          << base << " at " << limit;
      continue;
    }
    NumberText exponent = (random.one_in(3) ? "-" : "") + std::to_string(random.below(200));
    if (random.one_in(8)) exponent += Localized(".5");
    const Step_Number power = Power(Step_Number(base), Step_Number(exponent), Steps(limit));
    ASSERT_EQ(power.text(), Power(base, exponent, limit))
        << base << " to the " << exponent << " at " << limit;
  }
}

}  // namespace
}  // namespace quorvex
