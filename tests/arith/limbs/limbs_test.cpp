// Numbers in limbs at the edges of what a limb and a column hold, against exact identities.
#include "arith/limbs/limbs.h"
#include "arith/limbs/short_product.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <string>
#include <vector>

#include "arith/digits/add_digits.h"
#include "arith/digits/multiply_digits.h"
#include "arith/division/quotient_limbs.h"
#include "arith/limbs/limb_division.h"
#include "arith/limbs/limb_number.h"
#include "support/random_numbers.h"
#include "support/whole_number.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Wide;

const std::vector<Limb> edges = {0,
                                 1,
                                 2,
                                 9,
                                 10,
                                 (Limb{1} << 32U) - 1,
                                 Limb{1} << 32U,
                                 limbs::base / 2,
                                 limbs::base - 2,
                                 limbs::base - 1};

NumberText Text_Of(const std::vector<Limb>& number) {
  NumberText text(number.size() * limbs::digits, '0');
  for (std::size_t place = 0; place < number.size(); ++place) {
    limbs::Write(text.data() + (number.size() - 1 - place) * limbs::digits, number[place]);
  }
  Strip_Leading_Zeros(text);
  return text;
}

TEST(Limbs, DividesByOneLimb) {
  for (const Limb number : edges) {
    if (number == 0) continue;
    const limbs::Divisor divisor(number);
    for (const Limb limb : edges) {
      for (const Limb before : {Limb{0}, number / 2, number - 1}) {
        Limb rest = before;
        const Limb quotient = divisor.divide(rest, limb);
        EXPECT_LT(rest, number);
        EXPECT_TRUE(Wide{quotient} * number + rest == Wide{before} * limbs::base + limb)
            << before << " " << limb << " by " << number;
      }
    }
  }
}

TEST(Limbs, TakesALimbOffTheFullestColumn) {
  for (const Limb limb : edges) {
    Wide column = Wide{limbs::base - 1} * (limbs::base - 1) * 9 - limb;
    const Wide before = column;
    const Limb taken = limbs::Take_Limb(column);
    EXPECT_LT(taken, limbs::base);
    EXPECT_TRUE(column * limbs::base + taken == before) << limb;
  }
}

TEST(Limbs, MultipliesFullLimbs) {
  for (std::size_t count = 1; count <= 9; ++count) {
    const std::vector<Limb> a(count, limbs::base - 1);
    std::vector<Limb> b(count + 2, limbs::base - 1);
    b.front() = 1;
    std::vector<Limb> product(2 * count + 2);
    limbs::Multiply(product.data(), a.data(), a.size(), b.data(), b.size());
    EXPECT_EQ(Text_Of(product), Multiply_Digits(Text_Of(a), Text_Of(b))) << count;
  }
}

// Full limbs, or such as lie at edges.
limbs::Number Filled(std::size_t count, Random_Numbers& random) {
  std::vector<Limb> number(count, limbs::base - 1);
  if (random.one_in(2)) {
    for (Limb& limb : number) limb = edges[random.below(edges.size())];
  }
  number.front() += static_cast<Limb>(number.front() == 0);
  number.back() += static_cast<Limb>(number.back() == 0);
  limbs::Number trimmed;
  limbs::Trim({number.data(), count, 0, false}, trimmed);
  return trimmed;
}

// Squares and products of equal and of other lengths, rounded by a digit that is never reached.
TEST(Limbs, OfNumbersAreMultipliedAsTheirDigitsAre) {
  Random_Numbers random(1901);
  for (std::size_t round = 0; round < 700; ++round) {
    const std::size_t most = round < 600 ? 24 : 99;
    const limbs::Number a = Filled(1 + round % most, random);
    const limbs::Number b = Filled(1 + random.below(most), random);
    limbs::Number square;
    limbs::Number product;
    limbs::Multiply(a, a, 4000, square);
    limbs::Multiply(a, b, 4000, product);
    ASSERT_EQ(limbs::Text_Of(square), Multiply_Digits(limbs::Text_Of(a), limbs::Text_Of(a)));
    ASSERT_EQ(limbs::Text_Of(product), Multiply_Digits(limbs::Text_Of(a), limbs::Text_Of(b)));
    // Shortened, the first dropped digit rounds as it does in the whole product.
    const std::size_t kept = 1 + random.below(400);
    limbs::Number rounded;
    limbs::Multiply(a, limbs::Number(a), kept, rounded);
    limbs::Add(square, limbs::Number(), false, kept, product);
    limbs::Multiply(a, a, kept, square);
    ASSERT_TRUE(std::is_eq(limbs::Compare_Magnitudes(square, rounded))) << kept;
    ASSERT_TRUE(std::is_eq(limbs::Compare_Magnitudes(square, product))) << kept;
  }
}

// A root of so many random digits, a five behind them and zeros, so that it has twice as many, or a
// unit more: digits far behind tell how its power is rounded.
limbs::Number Root_Of_Half(std::size_t kept, unsigned degree, Random_Numbers& random) {
  const std::size_t zeros = degree * (2 * kept + 80) - kept - 1;
  const NumberText half = "7" + random.digits(kept - 1) + "5" + NumberText(zeros, '0');
  const auto root = Whole_Number::Root(Whole_Number(half), degree);
  return limbs::Number_Of({(root + Whole_Number(random.one_in(2) ? "1" : "0")).text()});
}

TEST(Limbs, AreRoundedByAllThatStandsBehind) {
  Random_Numbers random(1902);
  for (std::size_t round = 0; round < 500; ++round) {
    const std::size_t kept = 1 + random.below(150);
    const limbs::Number root = Root_Of_Half(kept, 2, random);
    limbs::Number expected;
    limbs::Multiply(root, root, 4000, expected);
    limbs::Add(expected, limbs::Number(), false, kept, expected);
    limbs::Number square;
    limbs::Multiply(root, root, kept, square);
    ASSERT_EQ(limbs::Text_Of(square), limbs::Text_Of(expected)) << kept;
    limbs::Multiply(root, limbs::Number(root), kept, square);
    ASSERT_EQ(limbs::Text_Of(square), limbs::Text_Of(expected)) << kept;
  }
}

TEST(Limbs, AreRaisedToTheThirdAsStepByStep) {
  Random_Numbers random(1903);
  for (std::size_t round = 0; round < 2000; ++round) {
    const std::size_t kept = 1 + random.below(150);
    const limbs::Number number =
        random.one_in(2) ? Root_Of_Half(kept, 3, random) : Filled(1 + random.below(30), random);
    const std::size_t guarded = kept + static_cast<std::size_t>(limbs::Plain_Length(number)) + 2;
    limbs::Number expected;
    limbs::Multiply(number, number, guarded, expected);
    limbs::Multiply(expected, number, guarded, expected);
    limbs::Add(expected, limbs::Number(), false, kept, expected);
    limbs::Number cube;
    limbs::Cube(number, guarded, kept, cube);
    ASSERT_EQ(limbs::Text_Of(cube), limbs::Text_Of(expected)) << kept;
  }
}

// q / base^count is at most x / d, and (q + 2.2) / base^count above.
void Expect_Quotient(const std::vector<Limb>& x, const std::vector<Limb>& d,
                     const std::vector<Limb>& q) {
  const std::size_t count = q.size();
  const auto text = [](std::vector<Limb> highest_first) {
    std::reverse(highest_first.begin(), highest_first.end());
    return Text_Of(highest_first);
  };
  const auto padded = [](const NumberText& digits, std::size_t length) {
    return NumberText(length - digits.size(), '0') + digits;
  };
  // All three as multiples of base^-(count + size) / 10.
  const std::size_t size = std::max(x.size(), d.size());
  const std::size_t length = (count + size + 1) * limbs::digits;
  const NumberText divisor = text(d) + NumberText((size - d.size()) * limbs::digits + 1, '0');
  const NumberText dividend =
      text(x) + NumberText((count + size - x.size()) * limbs::digits + 1, '0');
  const NumberText low = Multiply_Digits(text(q), divisor);
  const NumberText owed = Multiply_Digits(divisor.substr(0, divisor.size() - 1), NumberText("22"));
  EXPECT_LE(padded(low, length), padded(dividend, length)) << divisor;
  EXPECT_GT(padded(Add_Decimals({low, {}}, {owed, {}}), length), padded(dividend, length))
      << divisor;
}

TEST(Limbs, DividesFractions) {
  const auto check = [](const std::vector<Limb>& x, const std::vector<Limb>& d, std::size_t count) {
    std::vector<Limb> q(count);
    limbs::Divide_Fractions({x.data(), x.size()}, {d.data(), d.size()}, count, q.data());
    Expect_Quotient(x, d, q);
  };
  const Limb least = limbs::base / 10;
  for (const std::size_t n : {1U, 2U, 3U, 4U, 5U, 9U, 40U, 150U}) {
    for (const std::size_t count : {1U, 2U, 3U, 5U, 8U, 41U, 150U, 300U}) {
      if (n > count + 1) continue;  // the rest of it would not be looked at
      for (const Limb top : {least, least + 1, 2 * least, 5 * least, limbs::base - 1}) {
        for (const Limb below : edges) {
          std::vector<Limb> d = {top};
          d.resize(n, below);
          std::vector<Limb> x = {least - 1, below};
          check(x, d, count);
          x = d;  // a quotient of nines
          for (std::size_t place = n; --x[place - 1] >= limbs::base;) {
            x[--place] = limbs::base - 1;
          }
          check(x, d, count);
        }
      }
    }
  }
}

TEST(Limbs, DividesPairs) {
  const Limb least = limbs::base / 10;
  const auto check = [](limbs::Pair x, Limb further, limbs::Pair d) {
    const limbs::Pair q = limbs::Divide_Pairs(x, further, d);
    ASSERT_LT(q.low, limbs::base);
    Expect_Quotient({x.high, x.low, further}, {d.high, d.low}, {q.high, q.low});
  };
  for (const Limb top : {least, least + 1, 2 * least, 5 * least, limbs::base - 1}) {
    for (const Limb low : edges) {
      for (const Limb further : edges) {
        check({least - 1, low}, further, {top, limbs::base - 1 - low});
        check({0, low}, further, {top, low});
        if (low > 0) check({top, low - 1}, further, {top, low});
        check({top - 1, limbs::base - 1}, further, {top, low});
      }
    }
  }
}

}  // namespace
}  // namespace quorvex
