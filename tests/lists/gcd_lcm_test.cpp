// Greatest common divisors and least common multiples: what holds between the two.
#include <gtest/gtest.h>

#include <string>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "lists/gcd_lcm_function.h"
#include "support/random_numbers.h"

namespace quorvex {
namespace {

constexpr double limit = 400;

NumberText Product(const NumberText& a, const NumberText& b) {
  return Intermediate(operation::multiply, a, b, limit);
}

TEST(GcdAndLcm, OfTwoNumbersGiveTheirProduct) {
  Random_Numbers random(91);
  for (int round = 0; round < 300; ++round) {
    const auto number = [&] {
      return std::to_string(1 + random.below(9)) + random.digits(random.below(40));
    };
    const NumberText common = number();
    const NumberText a = Product(number(), common);
    const NumberText b = Product(number(), common);
    if (a == b) continue;  // beyond nine digits equal numbers have no divisor but 1
    const List list = {"format:MSD=400", a, b};
    const NumberText gcd = GCD_Function(list, Element_Form::truncated);
    const NumberText lcm = LCM_Function(list, Element_Form::truncated);
    ASSERT_EQ(Product(gcd, lcm), Product(a, b)) << a << ' ' << b;
    ASSERT_EQ(GCD_Function(list, Element_Form::whole), gcd);
    ASSERT_EQ(LCM_Function(list, Element_Form::whole), lcm);
  }
}

}  // namespace
}  // namespace quorvex
