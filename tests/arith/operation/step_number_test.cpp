// Steps in limbs against the same operations on texts.
#include "arith/operation/steps.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/conversions.h"
#include "numbers/whole_part.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/without_libraries.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"

namespace quorvex {
namespace {

using Step = Step_Number (Steps::*)(Step_Number, const Step_Number&) const;

struct Operation {
  std::int16_t code;
  Step step;
};

constexpr std::array<Operation, 4> operations{{{operation::add, &Steps::sum},
                                               {operation::subtract, &Steps::difference},
                                               {operation::multiply, &Steps::product},
                                               {operation::divide, &Steps::quotient}}};

std::string Call_Text(const Operation& operation, const std::string& a, const std::string& b,
                      double limit) {
  return std::to_string(operation.code) + ": " + a + " and " + b + " at " + std::to_string(limit);
}

// A quotient has as many digits as the limit says.
bool Takes_Too_Long(const Operation& operation, double limit) {
  return operation.code == operation::divide && !(limit <= 10'000);
}

void Expect_As_Text(const Operation& operation, const std::string& a, const std::string& b,
                    double limit) {
  if (Takes_Too_Long(operation, limit)) return;
  const Step_Number result = (Steps(limit).*operation.step)(Step_Number(a), Step_Number(b));
  EXPECT_EQ(result.text(), Intermediate(operation.code, a, b, limit))
      << Call_Text(operation, a, b, limit);
}

void Expect_All_As_Text(const std::string& a, const std::string& b, double limit) {
  for (const Operation& operation : operations) Expect_As_Text(operation, a, b, limit);
}

// Operands at the borders of limbs, of carries and of what division tells apart.
class Random_Operands {
 public:
  explicit Random_Operands(unsigned seed) : random_(seed) {}

  double limit() {
    if (random_.one_in(30)) return odd_limits[random_.below(odd_limits.size())];
    return static_cast<double>(1 + random_.below(random_.one_in(2) ? 40 : 300));
  }

  std::string number() {
    switch (random_.below(8)) {
      case 0:
        return std::to_string(random_.below(1000));
      case 1:
        return std::to_string(random_.below(100)) + std::string(random_.below(60), '0');
      case 2:
        return Signed("0." + std::string(random_.below(300), '0') + Digits(40));
      case 3:
        return Signed("1" + std::string(random_.below(200), '0') + Digits(3));
      case 4:
        return Signed(std::string(1 + random_.below(200), '9') + "." + Digits(200));
      case 5:
        return random_.number(100);
      default:
        return Signed(Digits(200) + (random_.one_in(3) ? "" : "." + Digits(200)));
    }
  }

  // Often related to the other operand.
  std::string number_beside(const std::string& other) {
    switch (random_.below(8)) {
      case 0:
        return other;
      case 1:
        return random_.neighbour(other);
      case 2:
        return Clean(other + std::string(random_.below(40), '0'));
      case 3:
        return Intermediate(operation::multiply, other, std::to_string(1 + random_.below(100'000)),
                            400);
      default:
        return number();
    }
  }

  std::string odd() {
    static const std::array<const char*, 18> texts{
        "",     "1E3", "-2.5E-3", "$5",    "(3)",     "0.0", "-0",  "007",   ".5",
        "1.50", "5.",  "#VALUE!", "#NUM!", "#DIV/0!", "#",   "abc", "1,234", "1E400"};
    return texts[random_.below(texts.size())];
  }

  Random_Numbers& random() { return random_; }

 private:
  static constexpr std::array<double, 9> odd_limits{
      0, -1, 0.5, 2.5, -7, 1e6, 1e9, 3e9, std::numeric_limits<double>::quiet_NaN()};

  std::string Digits(std::size_t most) { return random_.digits(1 + random_.below(most)); }
  std::string Signed(const std::string& text) {
    return Clean(random_.one_in(3) ? "-" + text : text);
  }
  // As formatting leaves it, so that it is held in limbs.
  std::string Clean(const std::string& text) {
    if (random_.one_in(20)) return text;
    return Clean_Up_Number(text, true, true).NumClean;
  }

  Random_Numbers random_;
};

TEST(StepNumber, GivesWhatTextsGive) {
  Random_Operands operands(1);
  for (int round = 0; round < 20'000; ++round) {
    const std::string a = operands.number();
    const std::string b = operands.number_beside(a);
    const double limit = operands.limit();
    const auto& operation = operations[operands.random().below(operations.size())];
    Expect_As_Text(operation, a, b, limit);
    if (HasFailure()) return;
  }
}

TEST(StepNumber, KeepsToTextsThroughWholeChains) {
  Random_Operands operands(2);
  for (int round = 0; round < 300; ++round) {
    const double limit = operands.limit();
    std::string text = operands.number();
    std::string earlier = operands.number();
    Step_Number number(text);
    for (int step = 0; step < 20 && text.size() < 3000; ++step) {
      const std::string other =
          operands.random().one_in(3) ? earlier : operands.number_beside(text);
      const auto& operation = operations[operands.random().below(operations.size())];
      if (Takes_Too_Long(operation, limit)) continue;
      earlier = text;
      number = (Steps(limit).*operation.step)(number, Step_Number(other));
      text = Intermediate(operation.code, text, other, limit);
      ASSERT_EQ(number.text(), text) << Call_Text(operation, earlier, other, limit);
    }
  }
}

TEST(StepNumber, GivesTokensAndOddTextsTheirWay) {
  Random_Operands operands(3);
  for (int round = 0; round < 500; ++round) {
    const std::string odd = operands.odd();
    const std::string other = operands.random().one_in(3) ? operands.odd() : operands.number();
    EXPECT_EQ(Step_Number(odd).text(), odd);
    Expect_All_As_Text(odd, other, operands.limit());
    Expect_All_As_Text(other, odd, operands.limit());
  }
}

// Products a trifle above a half of the last digit that is kept, which the columns that are left
// out at first bring about.
TEST(StepNumber, ProductsFromTheirHighColumnsAreInNoDoubt) {
  Random_Numbers random(7);
  for (std::size_t round = 0; round < 300; ++round) {
    const std::string half = "1" + random.digits(19) + "5" + std::string(155 + round % 10, '0');
    const std::string b = "7" + random.digits(84);
    const std::string below = Int_Function(Intermediate(operation::divide, half, b, 200));
    Expect_As_Text(operations[2], Intermediate(operation::add, below, "1", 200), b, 18);
  }
}

// The borders of rounding: digits one beside them, and such as division cuts in its own way.
TEST(StepNumber, RoundsAsTextsDo) {
  const std::string nines(60, '9');
  const std::string zeros(60, '0');
  const std::string far_below_1 = "0." + zeros;
  const std::string trifle = far_below_1 + zeros + "1";
  for (const double limit : {1, 4, 9, 16, 17, 33, 34, 35, 52, 58, 100}) {
    const auto kept = static_cast<std::size_t>(limit) + 2;
    for (const char* end :
         {"4", "5", "49", "499999999999999999999", "50", "500000000000000000001"}) {
      const std::string digits = std::string(kept, '9').append(end);
      Expect_All_As_Text(digits, "1", limit);
      Expect_All_As_Text(digits, trifle, limit);
      Expect_All_As_Text(far_below_1 + digits, "-" + trifle, limit);
      Expect_All_As_Text(std::string("1.").append(kept - 1, '0').append(end), "3", limit);
    }
    for (const char* divisor : {"1", "2", "3", "7", "8", "9", "10", "20", "64", "99", "0.5",
                                "0.001", "0.1", "1000", "123456789", "999999999999999999",
                                "1000000000000000000", "100000000000000001", "31415.926535"}) {
      for (const char* dividend : {"1", "2", "4", "10", "20", "100", "0.01", "99", "1000000007"}) {
        Expect_All_As_Text(dividend, divisor, limit);
        for (const std::string& tail : {zeros, nines, zeros + "1"}) {
          std::string text = dividend;
          text += tail;
          Expect_All_As_Text(text, divisor, limit);
          Expect_All_As_Text(far_below_1 + text, divisor, limit);
        }
      }
    }
  }
}

// Every ending that division may round, with divisors whose reciprocals end and such that don't.
TEST(StepNumber, DividesAllEndingsAsTextsDo) {
  for (const int divisor : {2, 3, 5, 6, 7, 11, 16, 20, 30, 625, 9973}) {
    const Operation divide = operations[3];
    for (int ending = 0; ending < 1000; ++ending) {
      const std::string quotient = "7" + std::string(23, '3') + std::to_string(1000 + ending);
      const std::string dividend =
          Intermediate(operation::multiply, quotient, std::to_string(divisor), 60);
      Expect_As_Text(divide, dividend, std::to_string(divisor), 24);
      Expect_As_Text(divide, dividend + "." + std::string(20, '1'), std::to_string(divisor), 24);
    }
  }
}

// Reciprocals of reciprocals: their digits behind the last ones that are looked at are zeros or
// nines.
TEST(StepNumber, DividesIntoOneAsTextsDoNextToShortNumbers) {
  Random_Numbers random(9);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t limit = 18 + random.below(random.one_in(4) ? 200 : 60);
    const std::string number = random.one_in(2) ? std::to_string(1 + random.below(999))
                                                : "3." + random.digits(1 + random.below(limit));
    const auto places = static_cast<double>(limit + random.below(6)) - 3;
    const std::string divisor = Intermediate(operation::divide, "1", number, places);
    for (const char* dividend : {"1", "100", "-0.1", "2"}) {
      Expect_As_Text(operations[3], dividend, divisor, static_cast<double>(limit));
    }
  }
}

TEST(StepNumber, ServesVeryLongAndVeryFarNumbers) {
  Random_Numbers random(4);
  const std::string longer = "7" + random.digits(5000);
  const std::string far = "0." + std::string(40'000, '0') + "123";
  for (const double limit : {10, 900, 1500, 6000}) {
    Expect_All_As_Text(longer, longer.substr(0, 1990), limit);
    Expect_All_As_Text(longer, far, limit);
    Expect_All_As_Text(far, longer, limit);
    Expect_All_As_Text("-" + far, "7", limit);
    Expect_All_As_Text(longer, "12345", limit);
  }
}

TEST(StepNumber, WritesInTheLocale) {
  In_Each_Locale([] {
    Random_Operands operands(5);
    for (int round = 0; round < 100; ++round) {
      const std::string a = Localized(operands.number());
      const std::string b = Localized(operands.number());
      Expect_All_As_Text(a, b, operands.limit());
    }
  });
}

TEST(StepNumber, FormsNoProductWithoutTheLibrary) {
  const Without_Libraries none;
  for (const char* other : {"3", "0", "1", "12.5", "16"}) Expect_All_As_Text("12.5", other, 30);
}

TEST(StepNumber, TellsAboutItself) {
  Random_Operands operands(6);
  for (int round = 0; round < 2000; ++round) {
    const std::string a = Clean_Up_Number(operands.number(), true, true).NumClean;
    const std::string b = Clean_Up_Number(operands.number_beside(a), true, true).NumClean;
    Step_Number number(a);
    EXPECT_EQ(number.text(), a);
    EXPECT_EQ(number.is_zero(), a == "0");
    EXPECT_EQ(number.is_negative(), a.front() == '-');
    const Step_Number other(b);
    EXPECT_EQ(Is_Equal(number, other), Is_Equal(a, b)) << a << " " << b;
    EXPECT_EQ(Is_Greater(number, other), Is_Greater(a, b)) << a << " " << b;
    EXPECT_EQ(Is_At_Least(number, other), Is_At_Least(a, b)) << a << " " << b;
    EXPECT_EQ(Plain_Text(number.decimal()), a);
    EXPECT_EQ(Step_Number(number.decimal()).text(), a);
    EXPECT_EQ(limbs::Text_Of(limbs::Floor(number.in_limbs())), Int_Function(a));
    number.negate();
    EXPECT_EQ(number.text(), a == "0" ? a : a.front() == '-' ? a.substr(1) : "-" + a);
  }
  EXPECT_TRUE(Step_Number("#NUM!").is_token());
  EXPECT_EQ(Failure_Of([] { Is_Greater(Step_Number("#NUM!"), Step_Number("1")); }),
            Failure_Number::type_mismatch);
}

TEST(StepNumber, TellsItsLeadingPower) {
  struct Case {
    const char* text;
    std::int64_t power;
  };
  for (const Case& number :
       {Case{"123.4", 2}, Case{"0.00123", -3}, Case{"0", 0}, Case{"-9", 0},
        Case{"1000000000000000000", 18}, Case{"0.000000000000000001", -18},
        Case{"0.0000000000000000001", -19}, Case{"007.50", 0}, Case{"0.050", -2}}) {
    EXPECT_EQ(Step_Number(number.text).leading_power(), number.power) << number.text;
  }
}

TEST(StepNumber, TakesFloatsAsTheHostWritesThem) {
  for (const double number : {0.0, -0.0, 1.0, -17.0, 0.5, -2.25, 1e14, 999999999999999.0, 1e15,
                              1e18, 123456789012345678.0, 1e-7, 1e300}) {
    EXPECT_EQ(Step_Number(number).text(), To_Text(HostValue(number)));
  }
  EXPECT_EQ(Failure_Of([] { Step_Number{std::nan("")}; }), Failure_Number::overflow);
}

}  // namespace
}  // namespace quorvex
