// Greatest common divisors and least common multiples of lists against GMP.
#include "lists/gcd_lcm_function.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/exact_decimal.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/whole_number.h"
#include "support/without_libraries.h"
#include "text/options.h"

namespace quorvex {
namespace {

// Beyond nine digits equal numbers have no divisor but 1.
Whole_Number Divisor_In_Fold(const Whole_Number& a, const Whole_Number& b) {
  const bool stays = a == b && a.text().size() > 9;
  return stays ? Whole_Number("1") : Whole_Number::Common_Divisor(a, b);
}

std::string Divisor_Of(const std::vector<std::string>& numbers) {
  Whole_Number running(numbers.front());
  for (std::size_t i = 1; i < numbers.size(); ++i) {
    running = Divisor_In_Fold(running, Whole_Number(numbers[i]));
  }
  return running.text();
}

std::string Multiple_Of(const std::vector<std::string>& numbers) {
  Whole_Number running(numbers.front());
  for (std::size_t i = 1; i < numbers.size(); ++i) {
    const Whole_Number number(numbers[i]);
    const Whole_Number product = running * number;
    running = product.is_zero() ? product : product / Divisor_In_Fold(running, number);
  }
  return running.text();
}

std::vector<std::string> Random_List(Random_Numbers& random) {
  constexpr std::size_t lengths[] = {6, 9, 30, 110, 300, 2000};
  const std::size_t most = lengths[random.below(std::size(lengths))];
  const auto [first, second] = Random_Pair(random, most);
  std::vector<std::string> numbers = {first, second};
  while (random.one_in(3)) numbers.push_back(Random_Pair(random, most).first);
  if (random.one_in(15)) numbers[random.below(numbers.size())] = "0";
  return numbers;
}

TEST(GcdAndLcm, AreExactAndShownAtTheLimitWhereverItStands) {
  Random_Numbers random(91);
  const double before = Default_MaxSD();
  for (int round = 0; round < 4000 && !testing::Test::HasFailure(); ++round) {
    constexpr std::size_t limits[] = {1, 5, 20, 100, 101, 300, 9000};
    std::size_t limit = limits[random.below(std::size(limits))];
    Set_Default_MaxSD(static_cast<double>(limit));
    const std::vector<std::string> numbers = Random_List(random);
    List list(numbers.begin(), numbers.end());
    if (random.one_in(2)) {
      limit = limits[random.below(std::size(limits))];
      const auto place = static_cast<std::ptrdiff_t>(random.below(list.size() + 1));
      list.insert(list.begin() + place, "format:MSD=" + std::to_string(limit));
    }
    std::string trace = std::to_string(limit) + " digits of";
    for (const std::string& number : numbers) trace += " " + number;
    SCOPED_TRACE(trace);
    const auto shown = [&](const std::string& number) {
      return Exact_Decimal(number).rounded(limit + 1).text();
    };
    for (const auto form : {Element_Form::truncated, Element_Form::whole}) {
      EXPECT_EQ(GCD_Function(list, form), shown(Divisor_Of(numbers)));
      EXPECT_EQ(LCM_Function(list, form), shown(Multiple_Of(numbers)));
    }
  }
  Set_Default_MaxSD(before);
}

// A number in E notation has more digits than its text has characters.
TEST(GcdAndLcm, AreExactForNumbersInENotation) {
  for (const auto form : {Element_Form::truncated, Element_Form::whole}) {
    const List list = {"1E+40", "1099511627776", "3.7E+30", "format:MSD=2"};
    EXPECT_EQ(GCD_Function(list, form), "537000000");
    EXPECT_EQ(LCM_Function(list, form), "370000000000000000000000000000000000000000");
  }
}

// An element that is no number is passed over, and never one whose step has failed.
TEST(GcdAndLcm, FailWhereAStepDoes) {
  const List numbers{"999999999999999999999999999999999999", "333333333333333333333333"};
  const List with_text{"999999999999", "abc", "666666666666"};
  EXPECT_EQ(GCD_Function(with_text, Element_Form::whole), "333333333333");
  {
    const Without_Libraries without;
    for (const Element_Form form : {Element_Form::whole, Element_Form::truncated}) {
      EXPECT_EQ(Failure_Of([&] { GCD_Function(numbers, form); }), Failure_Number::invalid_call);
      EXPECT_EQ(Failure_Of([&] { LCM_Function(numbers, form); }), Failure_Number::invalid_call);
    }
  }
  const Memory_Guard poor(0);
  const List long_numbers{"6E+100000000", "4E+100000000"};
  for (const Element_Form form : {Element_Form::whole, Element_Form::truncated}) {
    EXPECT_EQ(Failure_Of([&] { GCD_Function(long_numbers, form); }), Failure_Number::out_of_memory);
    EXPECT_EQ(Failure_Of([&] { LCM_Function(long_numbers, form); }), Failure_Number::out_of_memory);
  }
}

}  // namespace
}  // namespace quorvex
