// Random numbers of all lengths, in several locales and in any dress, against exact decimals.
#include <gtest/gtest.h>

#include <string>

#include "frame/class/cls_Quorvex.h"
#include "support/exact_decimal.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "text/compare_numbers.h"
#include "text/recognition.h"

namespace quorvex {
namespace {

constexpr double enough = 100000;

struct Operands {
  std::string a;
  std::string b;
};

Operands Random_Operands(Random_Numbers& random, std::size_t longest) {
  Operands operands;
  operands.a = random.number(longest);
  operands.b = random.one_in(3) ? random.neighbour(operands.a) : random.number(longest);
  if (random.one_in(20)) operands.b = operands.a;
  return operands;
}

template <typename Body>
void Try_Random_Operands(unsigned seed, int rounds, const Body& body) {
  In_Each_Locale([&] {
    Random_Numbers random(seed);
    for (int round = 0; round < rounds; ++round) {
      const Operands operands = Random_Operands(random, round % 10 == 0 ? 5000 : 80);
      body(operands, random);
      if (testing::Test::HasFatalFailure()) {
        FAIL() << "seed " << seed << " round " << round << "\na " << operands.a << "\nb "
               << operands.b;
      }
    }
  });
}

NumberText Sum(const std::string& a, const std::string& b) {
  return cls_Quorvex().qvxADD(a, b, Missing, Missing, Missing, Missing, enough);
}

NumberText Difference(const std::string& a, const std::string& b) {
  return cls_Quorvex().qvxSUBTRACT(a, b, Missing, Missing, Missing, Missing, enough);
}

TEST(Properties, SumsAndDifferencesAreExact) {
  Try_Random_Operands(41, 1500, [](const Operands& operands, Random_Numbers&) {
    const std::string a = Localized(operands.a);
    const std::string b = Localized(operands.b);
    const Exact_Decimal exact_a(operands.a);
    const Exact_Decimal exact_b(operands.b);
    const NumberText sum = Sum(a, b);
    ASSERT_EQ(sum, Localized((exact_a + exact_b).text()));
    ASSERT_EQ(Difference(a, b), Localized((exact_a + -exact_b).text()));
    ASSERT_EQ(Difference(sum, b), Localized(exact_a.text()));
  });
}

TEST(Properties, ComparisonsAgreeWithTheSignOfTheDifference) {
  Try_Random_Operands(42, 1500, [](const Operands& operands, Random_Numbers&) {
    HostValue a = Localized(operands.a);
    HostValue b = Localized(operands.b);
    const int sign = (Exact_Decimal(operands.a) + -Exact_Decimal(operands.b)).sign();
    const auto shown = [](bool answer) { return answer ? "True" : "False"; };
    cls_Quorvex engine;
    ASSERT_EQ(engine.qvxISEQUAL(a, b).text(), shown(sign == 0));
    ASSERT_EQ(engine.qvxISNOTEQUAL(a, b).text(), shown(sign != 0));
    ASSERT_EQ(engine.qvxISGREATEROREQUAL(a, b).text(), shown(sign >= 0));
    ASSERT_EQ(engine.qvxISLESS(a, b).text(), shown(sign < 0));
    ASSERT_EQ(engine.qvxISLESSOREQUAL(a, b).text(), shown(sign <= 0));
    ASSERT_EQ(engine.qvxISGREATER(a, b).text(), shown(sign > 0));
    ASSERT_EQ(engine.qvxSIGN(a).number(), Exact_Decimal(operands.a).sign());
  });
}

// The same number with quote marks, parentheses, separators, symbol and superfluous zeros.
std::string Dressed(std::string number, Random_Numbers& random) {
  const bool negative = number.front() == '-';
  if (negative) number.erase(0, 1);
  const bool has_fraction = number.find('.') != std::string::npos;
  if (random.one_in(3)) number.insert(0, random.below(20), '0');
  if (has_fraction && random.one_in(3)) number.append(random.below(20), '0');
  for (int marks = 0; random.one_in(2) && marks < 5; ++marks) {
    number.insert(random.below(number.size() + 1), 1, ',');
  }
  if (random.one_in(3)) number.insert(random.below(number.size() + 1), 1, '$');
  if (negative) number = random.one_in(2) ? "(" + number + ")" : "-" + number;
  for (int layers = 0; random.one_in(3) && layers < 3; ++layers) {
    const std::string mark = random.one_in(2) ? "'" : "\"";
    number.insert(0, mark).append(mark);
  }
  return Localized(number);
}

TEST(Properties, ANumberInAnyDressIsTheSameNumber) {
  Try_Random_Operands(43, 1500, [](const Operands& operands, Random_Numbers& random) {
    const std::string a = Dressed(operands.a, random);
    const std::string b = Dressed(operands.b, random);
    const Exact_Decimal exact(operands.a);
    ASSERT_TRUE(Is_Number_Text(a)) << a;
    ASSERT_EQ(Sum(a, b), Localized((exact + Exact_Decimal(operands.b)).text())) << a << ' ' << b;
    ASSERT_EQ(cls_Quorvex().qvxISEQUAL(a, Localized(operands.a)).text(), "True") << a;
    ASSERT_EQ(cls_Quorvex().qvxFORMAT(a, Missing, Missing, Missing, Missing, enough),
              Localized(exact.text()))
        << a;
  });
}

TEST(Properties, SumsAreCutTwoDigitsBehindTheLimit) {
  Try_Random_Operands(45, 1500, [](const Operands& operands, Random_Numbers& random) {
    const std::size_t limit = random.below(random.one_in(2) ? 10 : 100);
    const Exact_Decimal exact = Exact_Decimal(operands.a) + Exact_Decimal(operands.b);
    ASSERT_EQ(cls_Quorvex().qvxADD(Localized(operands.a), Localized(operands.b), Missing, Missing,
                                   Missing, Missing, limit),
              Localized(exact.rounded(limit + 2).text()))
        << limit;
  });
}

}  // namespace
}  // namespace quorvex
