// Rows of limbs against whole numbers of an independent library.
#include "arith/limbs/limb_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "support/random_numbers.h"
#include "support/whole_number.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Row_Divisor;
using limbs::Wide;

using Row = std::vector<Limb>;

Row Random_Row(Random_Numbers& random, std::size_t count) {
  Row row;
  for (std::size_t place = 0; place < count; ++place) {
    row.push_back(std::stoull(random.digits(limbs::digits)));
  }
  return row;
}

Limb Random_Divisor(Random_Numbers& random) {
  if (random.one_in(4)) return Row_Divisor::end - 1 - random.below(3);
  if (random.one_in(3)) return Limb{1} << (1 + random.below(30));
  return 2 + random.below(random.one_in(2) ? 10 : 2'000'000'000);
}

std::string Padded(Limb limb) {
  const std::string text = std::to_string(limb);
  return std::string(limbs::digits - text.size(), '0') + text;
}

Whole_Number Value_Of(const Row& row) {
  std::string text = "0";
  for (std::size_t place = row.size(); place-- > 0;) text += Padded(row[place]);
  return Whole_Number(text);
}

TEST(Row_Divisor, DividesAsItIsWritten) {
  Random_Numbers random(61);
  for (int round = 0; round < 20'000; ++round) {
    const Limb number = Random_Divisor(random);
    const Row_Divisor divisor(number);
    const Limb limb = Random_Row(random, 1)[0] * (1 + random.below(4));
    const Limb before = random.one_in(3) ? number - 1 : random.below(number);
    Limb rest = before;
    const Limb quotient = divisor.divide(rest, limb);
    ASSERT_LT(rest, number);
    ASSERT_TRUE(Wide{quotient} * number + rest == Wide{before} * limbs::base + limb)
        << before << " " << limb << " by " << number;

    const limbs::Loose_Limb loose =
        static_cast<limbs::Loose_Limb>(limb % (3 * limbs::base)) -
        (limb < 3 * limbs::base / 2 ? static_cast<limbs::Loose_Limb>(limb) : 0) * 2;
    rest = before;
    const limbs::Loose_Limb signed_quotient = divisor.divide_signed(rest, loose);
    ASSERT_LT(rest, number);
    __extension__ using Signed_Wide = __int128;
    ASSERT_TRUE(Signed_Wide{signed_quotient} * static_cast<Signed_Wide>(number) + rest ==
                Signed_Wide{before} * static_cast<Signed_Wide>(limbs::base) + loose)
        << before << " " << loose << " by " << number;
  }
}

struct Four_Rows {
  Four_Rows(Random_Numbers& random, std::size_t ways, std::size_t count) {
    for (std::size_t way = 0; way < ways; ++way) {
      rows.push_back(Random_Row(random, count));
      quotients.emplace_back(count);
      numbers.push_back(Random_Divisor(random));
      divisors.emplace_back(numbers.back());
    }
    for (std::size_t way = 0; way < ways; ++way) {
      from.push_back(rows[way].data());
      to.push_back(quotients[way].data());
    }
  }

  std::vector<Row> rows;
  std::vector<Row> quotients;
  std::vector<Limb> numbers;
  std::vector<Row_Divisor> divisors;
  std::vector<const Limb*> from;
  std::vector<Limb*> to;
};

Whole_Number Quotient(const Whole_Number& number, Limb divisor) {
  return number / Whole_Number(std::to_string(divisor));
}

TEST(Limb_Rows, AreDividedEachAndInTurn) {
  Random_Numbers random(62);
  for (int round = 0; round < 500; ++round) {
    const std::size_t ways = 1 + random.below(limbs::rows_at_once);
    const std::size_t count = 1 + random.below(12);
    Four_Rows four(random, ways, count);
    limbs::Divide_Rows(four.from.data(), four.divisors.data(), ways, count, four.to.data());
    for (std::size_t way = 0; way < ways; ++way) {
      ASSERT_EQ(Value_Of(four.quotients[way]).text(),
                Quotient(Value_Of(four.rows[way]), four.numbers[way]).text());
    }
    limbs::Divide_In_Turn(four.from[0], four.divisors.data(), ways, count, four.to.data());
    Whole_Number left = Value_Of(four.rows[0]);
    for (std::size_t way = 0; way < ways; ++way) {
      left = Quotient(left, four.numbers[way]);
      ASSERT_EQ(Value_Of(four.quotients[way]).text(), left.text());
    }
  }
}

// Rows that fall as powers do, so that no difference is negative: with a zero limb more each.
TEST(Limb_Rows, AreAddedAndDividedByHornersScheme) {
  Random_Numbers random(63);
  for (int round = 0; round < 500; ++round) {
    const std::size_t ways = 1 + random.below(limbs::rows_at_once);
    const std::size_t count = 6 + random.below(8);
    const bool alternate = random.one_in(2);
    Four_Rows four(random, ways, count);
    for (std::size_t way = 0; way < ways; ++way) {
      std::fill_n(four.rows[way].rbegin(), ways - way, 0);
      four.rows[way][count - 1 - (ways - way)] = 1 + random.below(limbs::base - 1);
    }
    std::vector<limbs::Loose_Limb> sum(count + 1);
    Whole_Number expected;
    limbs::Divide_Sums(sum.data(), four.from.data(), four.divisors.data(), ways, count, alternate);
    for (std::size_t way = 0; way < ways; ++way) {
      const Whole_Number row = Value_Of(four.rows[way]);
      expected = Quotient(alternate ? row - expected : row + expected, four.numbers[way]);
    }
    limbs::Settle(sum.data(), count + 1);
    ASSERT_EQ(Value_Of(Row(sum.begin(), sum.end())).text(), expected.text());

    std::reverse(four.from.begin(), four.from.end());
    std::fill(sum.begin(), sum.end(), 0);
    limbs::Add_Rows(sum.data(), four.from.data(), ways, count, alternate);
    limbs::Settle(sum.data(), count + 1);
    expected = Whole_Number();
    for (std::size_t way = 0; way < ways; ++way) {
      const Whole_Number row = Value_Of(four.rows[ways - 1 - way]);
      expected = alternate && way % 2 == 1 ? expected - row : expected + row;
    }
    ASSERT_EQ(Value_Of(Row(sum.begin(), sum.end())).text(), expected.text());
  }
}

TEST(Limb_Rows, TellTheFractionOfAProduct) {
  Random_Numbers random(64);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t count = random.one_in(20) ? 250 + random.below(300) : random.below(9);
    const std::size_t zeros = random.below(random.one_in(3) ? count + 3 : 2);
    const Row row = Random_Row(random, count + 1);
    Row fraction = Random_Row(random, count + 1);
    std::fill_n(fraction.rbegin(), std::min(zeros, fraction.size()), 0);
    const Limb told = limbs::Fraction_Of_Product(row.data(), count, fraction.data() + count + 1,
                                                 std::min(zeros, count + 1));
    // The product counts base^-(count + 2), so its limb behind the point has the place count + 1.
    std::string text = (Value_Of(row) * Value_Of(fraction)).text();
    text.insert(0, (2 * count + 2) * limbs::digits - text.size(), '0');
    const std::size_t place = (2 * count + 2 - (count + 2)) * limbs::digits;
    const Limb exact = std::stoull(text.substr(place, limbs::digits));
    ASSERT_LE((exact + limbs::base - told) % limbs::base, 2 * count + 4)
        << exact << " " << told << " with " << count << " limbs, " << zeros << " zeros";
  }
}

}  // namespace
}  // namespace quorvex
