// Rows and fractions of words against whole numbers of an independent library.
#include "arith/limbs/column_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "support/random_numbers.h"
#include "support/whole_number.h"

namespace quorvex {
namespace {

using columns::Word;

using Words = std::vector<Word>;

const Whole_Number zero;

Whole_Number Number(Word word) {
  return Whole_Number(std::to_string(word));
}

Whole_Number Units(std::size_t words) {
  return Whole_Number::Power(Number(Word{1} << columns::bits), words);
}

Word Random_Word(Random_Numbers& random) {
  if (random.one_in(5)) return columns::mask - random.below(2);
  if (random.one_in(5)) return random.below(2);
  return std::stoull(random.digits(limbs::digits)) & columns::mask;
}

// With room behind, and random words where it need not be zeros.
Words Random_Words(Random_Numbers& random, std::size_t count, bool is_padded) {
  Words words;
  for (std::size_t place = 0; place < columns::Room_For(count); ++place) {
    words.push_back(place >= count && is_padded ? 0 : Random_Word(random));
  }
  return words;
}

// Words as large as those of loose quotients.
void Triple(Words& row, std::size_t count) {
  for (std::size_t place = 0; place < count; ++place) row[place] *= 3;
}

Whole_Number Value_Of_Row(const Words& row, std::size_t count) {
  Whole_Number value;
  for (std::size_t place = count; place-- > 0;) value = value * Units(1) + Number(row[place]);
  return value;
}

Whole_Number Value_Of_Fraction(const Words& fraction, std::size_t count) {
  return Value_Of_Row(Words(fraction.rend() - static_cast<std::ptrdiff_t>(count), fraction.rend()),
                      count);
}

TEST(Column_Words, AreMultipliedToTheirLastPlace) {
  Random_Numbers random(101);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t count = 1 + random.below(random.one_in(20) ? columns::most_words : 12);
    Words row = Random_Words(random, count, true);
    const bool is_loose = count <= 64 && random.one_in(2);
    if (is_loose) Triple(row, count);
    Words fraction = Random_Words(random, count, false);
    Words product(columns::Room_For(count), 1);
    columns::Multiply(row.data(), fraction.data(), count, product.data());
    const Whole_Number exact = Value_Of_Row(row, count) * Value_Of_Fraction(fraction, count);
    const Whole_Number left = exact - Value_Of_Row(product, count) * Units(count);
    ASSERT_TRUE(!(left < zero) && left < Units(count) * Number((is_loose ? 3 : 1) * count + 2))
        << count;
    ASSERT_EQ(product[count] + product[count + 1], 0);
    if (is_loose) continue;

    for (Word& word : fraction) word <<= columns::lift;
    const Word lowest =
        columns::Lowest_Of_Product(row.data(), fraction.data(), count) >> columns::lift;
    const Whole_Number behind = exact % Units(count + 1) + Units(count + 1);
    const Whole_Number too_small = (behind - Number(lowest) * Units(count)) % Units(count + 1);
    ASSERT_TRUE(too_small < Units(count) * Number(2 * count + 2)) << count;
  }
}

TEST(Column_Words, AreDividedSideBySide) {
  Random_Numbers random(102);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t count = 1 + random.below(12);
    const std::size_t ways = 1 + random.below(columns::Divisions::most);
    columns::Divisions divisions;
    std::array<Words, columns::Divisions::most> rows;
    std::array<Word, columns::Divisions::most> numbers{};
    std::array<Whole_Number, columns::Divisions::most> dividends;
    for (std::size_t way = 0; way < ways; ++way) {
      numbers[way] = random.one_in(4)   ? columns::Divisor::end - 1 - random.below(3)
                     : random.one_in(3) ? Word{1} << (1 + random.below(30))
                                        : 2 + random.below(random.one_in(2) ? 10 : 2'000'000'000);
      rows[way] = Random_Words(random, count, true);
      divisions.divisors[way] = columns::Divisor(numbers[way]);
      divisions.rests[way] = random.one_in(3) ? numbers[way] - 1 : random.below(numbers[way]);
      divisions.rows[way] = rows[way].data();
      divisions.quotients[way] = rows[way].data();
      dividends[way] = Number(divisions.rests[way]) * Units(count) + Value_Of_Row(rows[way], count);
    }
    columns::Divide(divisions, ways, count);
    for (std::size_t way = 0; way < ways; ++way) {
      ASSERT_EQ(Value_Of_Row(rows[way], count).text(),
                (dividends[way] / Number(numbers[way])).text());
    }
  }
}

TEST(Column_Words, AreDividedLoosely) {
  Random_Numbers random(104);
  for (int round = 0; round < 3000; ++round) {
    const std::size_t count = 1 + random.below(12);
    const Word number = random.one_in(3)   ? (Word{1} << random.below(59)) + random.below(2)
                        : random.one_in(4) ? (Word{1} << 59U) - 1 - random.below(3)
                                           : 1 + random.below(random.one_in(2) ? 10 : 2000);
    const columns::Loose_Divisor divisor(number);
    Words row = Random_Words(random, count, true);
    if (random.one_in(2)) Triple(row, count);
    const Whole_Number dividend = Value_Of_Row(row, count);
    Word rest = 0;
    for (std::size_t place = count; place-- > 0;) row[place] = divisor.divide(rest, row[place]);
    const Whole_Number left = dividend - Value_Of_Row(row, count) * Number(number);
    ASSERT_TRUE(!(left < zero) && left < Number(3) * Number(number)) << number;
    ASSERT_EQ(left.text(), Number(rest).text());
    for (const Word word : row) ASSERT_LE(word, 6 * (columns::mask + 1));
  }
}

// Of fractions that fall, so that no sum is negative.
TEST(Column_Words, AreAddedInMultiples) {
  Random_Numbers random(103);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t count = 4 + random.below(8);
    const bool alternates = random.one_in(2);
    std::array<Words, columns::Multiples::most> fractions;
    columns::Multiples multiples{};
    Whole_Number expected;
    for (std::size_t way = 0; way < fractions.size(); ++way) {
      fractions[way] = Random_Words(random, count, false);
      fractions[way][0] >>= 15 * way + 1;
      multiples.factors[way] =
          way == 3 && random.one_in(2) ? 0 : 1 + random.below(1U << 29U) / (way + 1);
      if (way > 0) multiples.factors[way] = std::min(multiples.factors[way], multiples.factors[0]);
      const Whole_Number part =
          Value_Of_Fraction(fractions[way], count) * Number(multiples.factors[way]);
      expected = alternates && way % 2 == 1 ? expected - part : expected + part;
      for (Word& word : fractions[way]) word <<= columns::lift;
      multiples.lifted[way] = fractions[way].data();
    }
    if (expected < zero) continue;
    Words row(count);
    const Word before = columns::Sum_Of(multiples, alternates, count, row.data());
    ASSERT_EQ((Number(before) * Units(count) + Value_Of_Row(row, count)).text(), expected.text());
    if (alternates) continue;
    const Word after = columns::Add_Multiples(multiples, count, row.data());
    expected = expected + expected - Number(before) * Units(count);
    ASSERT_EQ((Number(after) * Units(count) + Value_Of_Row(row, count)).text(), expected.text());
  }
}

TEST(Column_Words, AreReadFromDecimalsAndBack) {
  Random_Numbers random(104);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t most = random.one_in(20) ? 2000 : 60;
    const std::string whole = Random_Whole(random, most);
    const std::string decimals = random.digits(random.below(most)) + "7";
    const limbs::Number number = *limbs::Read_Canonical(whole + "." + decimals);
    Words row(columns::Room_For(static_cast<std::size_t>(number.top()) + 2), 1);
    const std::size_t count = columns::Row_Of(number, row.data());
    const Whole_Number units = Units(1) * Whole_Number::Ten_To(decimals.size());
    const Whole_Number exact = Whole_Number(whole + decimals) * Units(1);
    const Whole_Number less =
        exact - Value_Of_Row(row, count) * Whole_Number::Ten_To(decimals.size());
    ASSERT_TRUE(!(less < zero) && less < units &&
                less < Whole_Number("3") * Whole_Number::Ten_To(decimals.size()));
    EXPECT_EQ(limbs::Text_Of(columns::To_Decimal(row.data() + 1, count - 1)), whole);

    const limbs::Number behind = *limbs::Read_Canonical("0." + decimals);
    const std::size_t words = 1 + random.below(most / 18 + 3);
    Words fraction(words);
    columns::Fraction_Of(behind, words, fraction.data());
    const Whole_Number too_small =
        Whole_Number(decimals) * Units(words) -
        Value_Of_Fraction(fraction, words) * Whole_Number::Ten_To(decimals.size());
    ASSERT_TRUE(!(too_small < zero) &&
                too_small < Whole_Number("2") * Whole_Number::Ten_To(decimals.size()));

    std::reverse(fraction.begin(), fraction.end());
    const Whole_Number value = Value_Of_Row(fraction, words);
    const std::size_t limb_count = 1 + random.below(words);
    const limbs::Number back = columns::Fraction_To_Decimal(fraction.data(), words, limb_count);
    const std::size_t digits = limb_count * limbs::digits;
    const Whole_Number scaled = value * Whole_Number::Ten_To(digits) / Units(words);
    Whole_Number read = back.is_zero() ? zero : Whole_Number(limbs::Digits_Of(back));
    read = read * Whole_Number::Ten_To(
                      static_cast<std::size_t>(back.low + static_cast<std::int64_t>(limb_count)) *
                      limbs::digits);
    ASSERT_TRUE(read == scaled || read + Number(1) == scaled);
  }
}

}  // namespace
}  // namespace quorvex
