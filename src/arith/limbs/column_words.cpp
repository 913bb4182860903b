#include "arith/limbs/column_words.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "expects.h"

namespace quorvex::columns {
namespace {

using limbs::Limb;
using limbs::Number;

// A column of products and the one above it.
struct Two_Columns {
  Wide first = 0;
  Wide second = 0;
};

Two_Columns Columns_Of(const Word* row, const Word* fraction, std::size_t count) {
  Two_Columns sums;
  for (std::size_t i = 0; i < count; i += 2) {
    sums.first += Wide{row[i]} * fraction[i] + Wide{row[i + 1]} * fraction[i + 1];
    sums.second += Wide{row[i + 1]} * fraction[i] + Wide{row[i + 2]} * fraction[i + 1];
  }
  return sums;
}

// Takes the lowest word off a column, and leaves the carry into the next.
Word Take_Word(Wide& column) {
  const Word word = static_cast<Word>(column) & mask;
  column >>= bits;
  return word;
}

// `Multiply` of a count that is known: without loops, whose ends are dear where they are short.
template <std::size_t count>
void Multiply_Known(const Word* row, const Word* fraction, Word* out) {
  Wide carry = 0;
  const auto add_column = [&]<std::size_t... places>(const Word* first,
                                                     std::index_sequence<places...>) {
    ((carry += Wide{first[places]} * fraction[places]), ...);
  };
  const auto multiply = [&]<std::size_t... columns>(std::index_sequence<columns...>) {
    const auto form_column = [&]<std::size_t column>() {
      add_column(row + column, std::make_index_sequence<count - column>());
      const Word word = Take_Word(carry);
      if constexpr (column > 0) out[column - 1] = word;
    };
    (form_column.template operator()<columns>(), ...);
  };
  multiply(std::make_index_sequence<count>());
  out[count - 1] = static_cast<Word>(carry);
  std::fill_n(out + count, padding, 0);
}

// True if this has multiplied.
bool Multiply_Few(const Word* row, const Word* fraction, std::size_t count, Word* out) {
  switch (count) {
    case 1:
      Multiply_Known<1>(row, fraction, out);
      return true;
    case 2:
      Multiply_Known<2>(row, fraction, out);
      return true;
    case 3:
      Multiply_Known<3>(row, fraction, out);
      return true;
    case 4:
      Multiply_Known<4>(row, fraction, out);
      return true;
    case 5:
      Multiply_Known<5>(row, fraction, out);
      return true;
    case 6:
      Multiply_Known<6>(row, fraction, out);
      return true;
    case 7:
      Multiply_Known<7>(row, fraction, out);
      return true;
    case 8:
      Multiply_Known<8>(row, fraction, out);
      return true;
    default:
      return false;
  }
}

// The limbs of a number by their power of the base.
Limb Limb_At(const Number& number, std::int64_t power) {
  return power >= number.low && power < number.top() ? number.data()[power - number.low] : 0;
}

// Divides rest * 2^60 + word by the base of limbs; `rest` is below it, and becomes the new one.
//
// 2^60 is 1.153 bases, and `above` the part above 1 in 64 bits. So the guess lacks less than 1.07
// for what is cut off, and 1.153 for the word: two at most.
Word Divide_By_Base(Limb& rest, Word word) {
  constexpr auto above = static_cast<Word>((Wide{one - limbs::base} << 64U) / limbs::base);
  Word quotient = rest + static_cast<Word>(Wide{rest} * above >> 64U);
  rest = (rest << bits) + word - quotient * limbs::base;
  for (int left = 2; left > 0; --left) {
    const auto is_less = static_cast<Word>(rest >= limbs::base);
    quotient += is_less;
    rest -= is_less * limbs::base;
  }
  return quotient;
}

}  // namespace

std::size_t Row_Of(const Number& number, Word* row) {
  std::size_t count = 1;
  for (std::int64_t power = number.top(); power-- > 0;) {
    Wide column = Limb_At(number, power);
    for (std::size_t place = 1; place < count; ++place) {
      column += Wide{row[place]} * limbs::base;
      row[place] = Take_Word(column);
    }
    if (column != 0) row[count++] = static_cast<Word>(column);
  }
  Limb behind = Limb_At(number, -1);
  row[0] = Divide_By_Base(behind, 0);
  std::fill_n(row + count, padding, 0);
  return count;
}

// Each word is what the base of words takes out of the limbs. Those that are left need no more
// places than the words that are: a limb is 1.16 times a word's unit, and one more makes up for as
// many words as a row has.
void Fraction_Of(const Number& number, std::size_t count, Word* fraction) {
  Expects(number.top() <= 0 && count <= most_words);
  const std::size_t used = count + 1;
  limbs::Scratch scratch(used);
  Limb* const decimals = scratch.data();
  for (std::size_t place = 0; place < used; ++place) {
    decimals[place] =
        Limb_At(number, static_cast<std::int64_t>(place) - static_cast<std::int64_t>(used));
  }
  for (std::size_t word = 0; word < count; ++word) {
    Word carry = 0;
    for (std::size_t place = word; place < used; ++place) {
      carry = Divide_By_Base(decimals[place], carry);
    }
    fraction[word] = carry;
  }
}

Number To_Decimal(Word* row, std::size_t count) {
  limbs::Scratch scratch(count + 3);
  std::size_t limb_count = 0;
  for (;;) {
    while (count > 0 && row[count - 1] == 0) --count;
    if (count == 0) break;
    Limb rest = 0;
    for (std::size_t place = count; place-- > 0;) row[place] = Divide_By_Base(rest, row[place]);
    scratch.data()[limb_count++] = rest;
  }
  Number number;
  limbs::Trim({scratch.data(), limb_count, 0, false}, number);
  return number;
}

// Words that are as far down as the places still to come no longer count.
Number Fraction_To_Decimal(Word* row, std::size_t count, std::size_t limbs) {
  limbs::Scratch scratch(limbs);
  for (std::size_t left = limbs; left-- > 0;) {
    Wide column = 0;
    for (std::size_t place = count > left + 2 ? count - left - 2 : 0; place < count; ++place) {
      column += Wide{row[place]} * limbs::base;
      row[place] = Take_Word(column);
    }
    scratch.data()[left] = static_cast<Limb>(column);
  }
  Number number;
  limbs::Trim({scratch.data(), limbs, -static_cast<std::int64_t>(limbs), false}, number);
  return number;
}

// Of the columns below the one that begins, each of at most `count` products adds less than a unit.
void Multiply(const Word* row, const Word* fraction, std::size_t count, Word* out) {
  Expects(count <= most_words && count > 0);
  if (Multiply_Few(row, fraction, count, out)) return;
  Wide carry = 0;
  for (std::size_t place = 0; place < count; place += 2) {
    const Two_Columns columns = Columns_Of(row + place, fraction, count - place);
    carry += columns.first;
    const Word word = Take_Word(carry);
    if (place > 0) out[place - 1] = word;
    if (place + 1 == count) break;
    carry += columns.second;
    out[place] = Take_Word(carry);
  }
  out[count - 1] = static_cast<Word>(carry);
  std::fill_n(out + count, padding, 0);
}

void Lift_Powers(Word* fraction, std::size_t count, std::size_t powers, Word* lifted,
                 std::size_t apart) {
  limbs::Scratch scratch(2 * Room_For(count));
  Word* const first = scratch.data();  // as a row
  Word* const product = first + Room_For(count);
  std::reverse_copy(fraction, fraction + count, first);
  std::fill_n(first + count, padding, 0);
  for (std::size_t power = 1; power <= powers; ++power, lifted += apart) {
    if (power > 1) {
      Multiply(first, fraction, count, product);
      std::reverse_copy(product, product + count, fraction);
    }
    std::transform(fraction, fraction + count, lifted, [](Word word) { return word << lift; });
  }
}

void Divide(Divisions& divisions, std::size_t ways, std::size_t count) {
  Expects(ways > 0 && ways <= Divisions::most);
  const auto divide = [&]<std::size_t known_ways>() {
    for (std::size_t place = count; place-- > 0;) {
      for (std::size_t way = 0; way < known_ways; ++way) {
        divisions.quotients[way][place] =
            divisions.divisors[way].divide(divisions.rests[way], divisions.rows[way][place]);
      }
    }
  };
  switch (ways) {
    case 1:
      return divide.template operator()<1>();
    case 2:
      return divide.template operator()<2>();
    case 3:
      return divide.template operator()<3>();
    default:
      return divide.template operator()<Divisions::most>();
  }
}

Word Sum_Of(const Multiples& multiples, bool alternates, std::size_t count, Word* row) {
  const auto [a, b, c, d] = multiples.lifted;
  const auto [by_a, by_b, by_c, by_d] = multiples.factors;
  Signed_Wide carry = 0;
  for (std::size_t place = count; place-- > 0;) {
    const Wide even = Wide{a[place]} * by_a + Wide{c[place]} * by_c;
    const Wide odd = Wide{b[place]} * by_b + Wide{d[place]} * by_d;
    carry += static_cast<Signed_Wide>(alternates ? even - odd : even + odd) >> lift;
    *row++ = static_cast<Word>(carry) & mask;
    carry >>= bits;
  }
  Expects(carry >= 0 && carry < static_cast<Signed_Wide>(Divisor::end));
  return static_cast<Word>(carry);
}

Word Add_Multiples(const Multiples& multiples, std::size_t count, Word* row) {
  const auto [a, b, c, d] = multiples.lifted;
  const auto [by_a, by_b, by_c, by_d] = multiples.factors;
  Wide carry = 0;
  for (std::size_t place = count; place-- > 0; ++row) {
    const Wide sum = Wide{a[place]} * by_a + Wide{b[place]} * by_b + Wide{c[place]} * by_c +
                     Wide{d[place]} * by_d;
    carry += (sum >> lift) + *row;
    *row = Take_Word(carry);
  }
  return static_cast<Word>(carry);
}

}  // namespace quorvex::columns
