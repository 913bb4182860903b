// The reciprocal against its iteration, and quotients against exact remainders.
#include "arith/division/reciprocal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "arith/digits/add_digits.h"
#include "arith/digits/multiply_digits.h"
#include "arith/digits/subtract_digits.h"
#include "arith/division/long_quotient.h"
#include "arith/division/quick_quotient.h"
#include "arith/division/quick_reciprocal.h"
#include "arith/division/recip_divide.h"
#include "arith/division/told_rounding.h"
#include "support/failures.h"
#include "support/locales.h"
#include "support/surroundings.h"
#include "support/without_libraries.h"
#include "text/round_to_sd.h"

namespace quorvex {
namespace {

TEST(Reciprocal, GivesTheKnownDigits) {
  struct Case {
    const char* k;
    std::int32_t p;
    const char* digits;
    std::int32_t power;
  };
  const std::vector<Case> cases = {
      {"3", 20, "33333333333333333333", -20},
      {"2", 20, "49999999999999999999", -20},
      {"10", 20, "99999999999999999999", -21},
      {"123456789", 20, "81000000737100006707", -28},
      {"8", 30, "124999999999999999999999999999", -30},
      {"1000", 25, "9999999999999999999999999", -28},
      {"11", 2, "#EXPR!", 0},  // the rounds come back to where they were
      {"7", 1, "", -1},
      {"7", 0, "", 0},
      {"1", 5, "1", 0},
      {"0", 5, "99999", 2147483647},
      {"0", 0, "9", 2147483647},
      {"abc", 5, "", 0},
      {"", 5, "", 0},
  };
  for (const auto& [k, p, digits, power] : cases) {
    const type_Division_Recip reciprocal = myInverse5(k, p);
    EXPECT_EQ(reciprocal.digits, digits) << k << " to " << p;
    EXPECT_EQ(reciprocal.powerOfTen, power) << k << " to " << p;
  }
}

// Where digits are found without the iteration, they are those of the iteration.
class Quick_Reciprocals {
 public:
  void check(const NumberText& k, std::int32_t p) {
    if (k == "1" || k == "0") return;
    ++asked_;
    const auto quick = Quick_Reciprocal(k, p);
    if (!quick) return;
    ++found_;
    const type_Division_Recip iterated = Iterated_Reciprocal(k, p);
    ASSERT_EQ(*quick, iterated.digits) << k << " to " << p;
    ASSERT_EQ(-(p + static_cast<std::int32_t>(k.size()) - 1), iterated.powerOfTen) << k;
  }
  // Else the test would look at nothing.
  void expect_most_found() const {
    EXPECT_GT(found_ * 10, asked_ * 8) << found_ << " of " << asked_;
  }

 private:
  int asked_ = 0;
  int found_ = 0;
};

NumberText Times(NumberText number, int factor) {
  int carry = 0;
  for (std::size_t place = number.size(); place-- > 0;) {
    const int product = (number[place] - '0') * factor + carry;
    number[place] = static_cast<char>('0' + product % 10);
    carry = product / 10;
  }
  return carry == 0 ? number : std::to_string(carry) + number;
}

// Digits of many kinds: random, sparse, nearly all nines, zeros and nines, fives, two far apart.
NumberText Odd_Digits(std::mt19937& random, std::size_t length) {
  const auto any = [&] { return static_cast<char>('0' + random() % 10); };
  const auto kind = random() % 6;
  NumberText digits(length, kind == 2 ? '9' : '0');
  for (char& digit : digits) {
    if (kind == 0 || (kind < 3 && random() % 8 == 0)) digit = any();
    if (kind == 3) digit = random() % 2 == 0 ? '0' : '9';
    if (kind == 4) digit = random() % 2 == 0 ? '0' : '5';
  }
  if (kind == 5) digits.back() = any();
  if (digits.front() == '0') digits.front() = static_cast<char>('1' + random() % 9);
  return digits;
}

TEST(Reciprocal, AgreesWithItsIteration) {
  Quick_Reciprocals reciprocals;
  for (int k = 2; k < 1200; ++k) {
    for (const int p : {8, 9, 10, 11, 12, 14, 17, 20, 24, 25, 31, 104}) {
      reciprocals.check(std::to_string(k), p);
    }
  }
  std::mt19937 random(20);
  for (int round = 0; round < 6000; ++round) {
    const NumberText k = Odd_Digits(random, 1 + random() % 60);
    reciprocals.check(k, static_cast<std::int32_t>(8 + random() % 100));
  }
  for (int round = 0; round < 300; ++round) {
    const NumberText k = Odd_Digits(random, 1 + random() % 300);
    reciprocals.check(k, static_cast<std::int32_t>(200 + random() % 400));
  }
  for (int round = 0; round < 15; ++round) {
    const NumberText k = Odd_Digits(random, 1 + random() % 3000);
    reciprocals.check(k, static_cast<std::int32_t>(24 + random() % 3000));
  }
  reciprocals.expect_most_found();
}

TEST(Reciprocal, EndsInNinesWhereTheFractionEnds) {
  Quick_Reciprocals reciprocals;
  NumberText by_two = "2";
  for (int twos = 1; twos < 60; ++twos, by_two = Times(by_two, 2)) {
    NumberText k = by_two;
    for (int fives = 0; fives < 30; fives += 3) {
      reciprocals.check(k, 8 + (twos * 7 + fives) % 76);
      k = Times(Times(Times(k, 5), 5), 5);
    }
  }
  reciprocals.expect_most_found();
}

// The quotient as it is defined, by the iteration.
Decimal Defined_Quotient(const NumberText& X, const NumberText& k, std::int32_t sd) {
  const std::int32_t p = sd + 3;
  const type_Division_Recip inverse = Iterated_Reciprocal(k, p);
  NumberText product = Multiply_Digits(X, inverse.digits);
  std::int64_t power = inverse.powerOfTen + static_cast<std::int64_t>(product.size()) - sd;
  product.resize(static_cast<std::size_t>(p));
  Round_Digits(product, sd);
  if (product.size() > static_cast<std::size_t>(p)) ++power;
  product.resize(static_cast<std::size_t>(sd));
  return {product, power};
}

// Where quotients are found without all of the reciprocal, they are the defined ones.
class Told_Quotients {
 public:
  using Routine = bool (*)(std::string_view, std::string_view, std::int32_t, Decimal&);

  Told_Quotients(Routine routine, unsigned seed) : routine_(routine), random_(seed) {}

  std::mt19937& random() { return random_; }
  std::size_t any(std::size_t most) { return 1 + random_() % most; }

  void check(const NumberText& X, const NumberText& k, std::size_t digits) {
    if (k == "1") return;
    const auto sd = static_cast<std::int32_t>(digits);
    Decimal told;
    ++asked_;
    if (!routine_(X, k, sd, told)) return;
    ++found_;
    const Decimal defined = Defined_Quotient(X, k, sd);
    ASSERT_EQ(told.digits, defined.digits) << X << " by " << k << " to " << sd;
    ASSERT_EQ(told.power_of_ten, defined.power_of_ten) << X << " by " << k << " to " << sd;
  }
  void expect_most_found() const {
    EXPECT_GT(found_ * 10, asked_ * 8) << found_ << " of " << asked_;
  }

 private:
  Routine routine_;
  std::mt19937 random_;
  int asked_ = 0;
  int found_ = 0;
};

TEST(Reciprocal, QuickQuotientsAreProductsWithTheIteration) {
  Told_Quotients quotients(Quick_Quotient, 21);
  std::mt19937& random = quotients.random();
  const auto digits = [&](std::size_t longest) {
    return Odd_Digits(random, quotients.any(longest));
  };
  for (int round = 0; round < 12000; ++round) {
    constexpr std::size_t lengths[] = {18, 36, 130};
    const std::size_t longest = lengths[round % 3];
    NumberText k = digits(longest);
    if (round % 5 == 0) k.append(random() % 4, '0');
    quotients.check(digits(longest), k, 5 + random() % longest);
  }
  for (int round = 0; round < 60; ++round) {
    quotients.check(digits(2000), digits(2000), 5 + random() % 1000);
    quotients.check(digits(2000), digits(17), 5 + random() % 4000);
  }
  quotients.expect_most_found();
}

// Quotients whose digits behind the limit are those where rounding changes, or a trifle from there.
void Check_Borders(Told_Quotients& quotients, std::size_t least, std::size_t most, int rounds) {
  const std::vector<NumberText> ends = {"",    "0",   "001", "01",  "1",   "4999", "5",   "50",
                                        "500", "501", "509", "51",  "699", "7",    "701", "949",
                                        "95",  "951", "959", "960", "961", "99",   "999"};
  std::mt19937& random = quotients.random();
  for (int round = 0; round < rounds; ++round) {
    const std::size_t sd = least + random() % (most - least);
    NumberText quotient = Odd_Digits(random, sd) + ends[random() % ends.size()];
    if (round % 2 == 0) quotient.append(random() % 20, '0');
    const NumberText k = Odd_Digits(random, quotients.any(most));
    NumberText X = Multiply_Digits(quotient, k);
    if (round % 3 == 0) X = Add_Decimals({X, {}}, {"1", {}});
    if (round % 3 == 1) X = Subtract_Decimals({X, {}}, {"1", {}}).Difference;
    if (X == "0") continue;
    quotients.check(X, k, sd);
  }
}

TEST(Reciprocal, QuickQuotientsRoundAsTheirDefinition) {
  Told_Quotients quotients(Quick_Quotient, 22);
  Check_Borders(quotients, 5, 32, 8000);
  Check_Borders(quotients, 5, 65, 8000);
  quotients.expect_most_found();
}

TEST(Reciprocal, LongQuotientsAreProductsWithTheIteration) {
  Told_Quotients quotients(Long_Quotient, 24);
  std::mt19937& random = quotients.random();
  for (int round = 0; round < 1200; ++round) {
    const std::size_t longest = round % 100 == 0 ? 3000 : 300;
    const auto digits = [&] { return Odd_Digits(random, quotients.any(longest)); };
    NumberText k = digits();
    if (round % 5 == 0) k.append(random() % 4, '0');
    quotients.check(digits(), k, 100 + random() % longest);
  }
  Check_Borders(quotients, 100, 200, 1200);
  quotients.expect_most_found();
}

// What is told of a range of digits behind the limit holds for all of them.
TEST(ToldRounding, IsThatOfAllNumbersBetween) {
  std::mt19937 random(23);
  const auto is_raised = [](int guard) {
    NumberText digits = std::to_string(700'000 + guard);  // borrowed from where below 0
    Round_Digits(digits, 3);
    return digits.substr(0, 3) == "701";
  };
  int told = 0;
  for (int round = 0; round < 20000; ++round) {
    const double low = static_cast<double>(random() % 104'000) / 100 - 40;
    const double high = std::min(low + static_cast<double>(random() % 1000) / 100, 999.99);
    if (high < low) continue;
    const Told_Rounding rounding = Round_Between(low, high);
    if (rounding == Told_Rounding::in_doubt) continue;
    ++told;
    for (double guard = std::floor(low); guard <= high; ++guard) {
      ASSERT_EQ(is_raised(static_cast<int>(guard)), rounding == Told_Rounding::is_raised) << guard;
    }
  }
  EXPECT_GT(told, 10000);
}

TEST(RecipDivide, AnswersAsToldByItsCases) {
  struct Case {
    const char* X;
    const char* Y;
    std::int32_t sd;
    const char* digits;
    std::int32_t power;
  };
  const std::vector<Case> cases = {
      {"1", "8", 10, "1250000000", -10},
      {"125", "5", 10, "2500000000", -8},
      {"2", "7", 2, "28", -2},  // cut, not rounded: a zero at the end moves the rounding place
      {"12345", "1", 2, "12345", 0},
      {"0", "3", 8, "0", 0},
      {"abc", "2", 8, "#NUM!", 0},
      {"2", "1E5", 8, "#VALUE!", 0},
      {"#NUM!", "2", 8, "#NUM!", 0},
      {"1", "3", 2147483646, "", 0},  // three digits more pass 32 bits
  };
  for (const auto& [X, Y, sd, digits, power] : cases) {
    NumberText dividend = X;
    NumberText divisor = Y;
    const type_Division_Recip quotient = Recip_Divide(dividend, divisor, sd);
    EXPECT_EQ(quotient.digits, digits) << X << " by " << Y;
    EXPECT_EQ(quotient.powerOfTen, power) << X << " by " << Y;
  }
}

// A token takes part in what is done to digits: it is cut, and cut again.
TEST(RecipDivide, CutsATokenLikeDigits) {
  const std::vector<std::pair<std::int32_t, const char*>> cases = {
      {1, "#VAL"}, {2, "#VALU"}, {3, "#VALUE"}, {4, "#VAL"}, {6, "#VALUE"}, {7, "#VALUE!"}};
  for (const auto& [sd, digits] : cases) {
    NumberText dividend = "12.5";
    NumberText divisor = "3";
    EXPECT_EQ(Recip_Divide(dividend, divisor, sd).digits, digits) << sd;
    dividend = "2";
    divisor = "12.5";
    EXPECT_EQ(Recip_Divide(dividend, divisor, sd).digits, digits) << sd;
  }
}

TEST(RecipDivide, FailsWhereThereIsNoRoomForIt) {
  const Memory_Guard poor(1000);
  for (const char* divisor : {"7", "12345678901234567890123"}) {
    NumberText X = "22";
    NumberText Y = divisor;
    EXPECT_EQ(Failure_Of([&] { Recip_Divide(X, Y, 2'000'000'000); }), Failure_Number::out_of_memory)
        << divisor;
    EXPECT_EQ(Failure_Of([&] { myInverse5(divisor, 2'000'000'000); }),
              Failure_Number::out_of_memory)
        << divisor;
  }
}

TEST(RecipDivide, HasNoDigitsWithoutTheLibraryOfProducts) {
  const Without_Libraries without;
  for (const char* k : {"7", "12345678901234567890123"}) {
    for (const std::int32_t p : {7, 20, 400}) EXPECT_EQ(myInverse5(k, p).digits, "#VALUE!") << k;
  }
  for (const char* divisor : {"7", "70000"}) {
    for (const std::int32_t sd : {1, 30, 400}) {
      NumberText X = "22";
      NumberText Y = divisor;
      EXPECT_EQ(Recip_Divide(X, Y, sd).digits, sd == 1 ? "#VAL" : "#VALUE!") << divisor;
    }
  }
}

TEST(RecipDivide, CleansItsOperandsInPlace) {
  NumberText dividend = "$1,000";
  NumberText divisor = "(8)";
  Recip_Divide(dividend, divisor, 8);
  EXPECT_EQ(dividend, "1000");
  EXPECT_EQ(divisor, "-8");
}

}  // namespace
}  // namespace quorvex
