// Fixed-point numbers in words of 60 bits, for chains of short products that are cut off: a column
// of products fits two machine words whole, and none of them has carries to look after.
//
// A row has its words from the least on. A fraction has them from the point on, so that its first
// words are the fraction to fewer of them. Where both are multiplied, a column takes them in the
// same order.
#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include "arith/limbs/limb_number.h"
#include "expects.h"

namespace quorvex::columns {

using Word = limbs::Limb;
using limbs::Wide;
__extension__ using Signed_Wide = __int128;

inline constexpr unsigned bits = 60;
/// What a word and its fraction are counted in: the unit of the word above.
inline constexpr Word one = Word{1} << bits;
inline constexpr auto one_as_float = static_cast<double>(one);
inline constexpr Word mask = one - 1;

/// Of the longest row: so many products and a carry have room in a column.
inline constexpr std::size_t most_words = 250;

/// Words of zero behind a row, and room for as many behind a fraction: products take words by twos.
inline constexpr std::size_t padding = 2;

/// The room that a row of so many words takes.
constexpr std::size_t Room_For(std::size_t count) {
  return count + padding;
}

/// The row of a number, with one word behind the point, at most three units too small. Gives the
/// count of its words; `row` has room for a word more than the number has limbs before the point.
std::size_t Row_Of(const limbs::Number& number, Word* row);

/// The first `count` words of a number from 0 to below 1, at most two units of the last too small.
void Fraction_Of(const limbs::Number& number, std::size_t count, Word* fraction);

/// The whole number of a row without words behind the point. Its words are used up.
limbs::Number To_Decimal(Word* row, std::size_t count);

/// The number of a row behind the point, its first `limbs` limbs cut off or a unit less.
limbs::Number Fraction_To_Decimal(Word* row, std::size_t count, std::size_t limbs);

/// The product of a row and a fraction of as many words, in the places of the row: less than
/// count + 2 units too small. `out`, another row, is padded. Up to 64 words of the row may be as
/// large as those of loose quotients: it is then less than 3 count + 2 units too small, and what
/// runs over is left in its last word.
void Multiply(const Word* row, const Word* fraction, std::size_t count, Word* out);

/// A divisor from 2 to below 2^31, so small that a dividend is a word and not two: as in
/// `row_divisor.h`, for another base.
class Divisor {
 public:
  static constexpr Word end = Word{1} << 31U;

  Divisor() = default;
  explicit Divisor(Word number)
      : number_(number),
        bases_(one / number),
        rest_of_base_(one % number),
        shift_(static_cast<unsigned>(std::bit_width(number - 1)) - 1),
        reciprocal_(static_cast<Word>((Wide{1} << (64U + shift_)) / number +
                                      static_cast<Word>(!std::has_single_bit(number)))) {
    Expects(number >= 2 && number < end);
  }

  /// Divides rest * 2^60 + word; `rest` becomes the new rest.
  Word divide(Word& rest, Word word) const {
    const Word dividend = rest * rest_of_base_ + word;
    const auto quotient = static_cast<Word>(Wide{dividend} * reciprocal_ >> 64U) >> shift_;
    const Word above = rest * bases_;
    rest = dividend - quotient * number_;
    return above + quotient;
  }

 private:
  Word number_ = 0;
  Word bases_ = 0;
  Word rest_of_base_ = 0;
  unsigned shift_ = 0;
  Word reciprocal_ = 0;
};

/// A divisor from 1 to below 2^59 that divides a row from its last word on, by two products a word
/// and without guesses to be corrected: words of a quotient are up to three times what a row's are,
/// and a quotient is less than three units too small.
///
/// 2^t being the highest bit of the divisor, a dividend without its last t bits is multiplied by a
/// reciprocal of 64 bits. Each of those bits, of what the reciprocal is cut by, and of what the
/// product is, makes a quotient at most one too small: so the rest is below three divisors. With a
/// word of up to 3 * 2^60 the dividend is below 6 * 2^(60 + t).
class Loose_Divisor {
 public:
  explicit Loose_Divisor(Word number)
      : number_(number),
        shift_(static_cast<unsigned>(std::bit_width(number)) - 1),
        reciprocal_(static_cast<Word>(((Wide{1} << (64U + shift_)) - 1) / number)) {
    Expects(number >= 1 && number < Word{1} << (bits - 1));
  }

  /// Divides rest * 2^60 + word; `rest` becomes the new rest.
  Word divide(Word& rest, Word word) const {
    const Word dividend = (rest << (bits - shift_)) + (word >> shift_);
    const auto quotient = static_cast<Word>(Wide{dividend} * reciprocal_ >> 64U);
    rest = (rest << bits) + word - quotient * number_;
    return quotient;
  }

 private:
  Word number_;
  unsigned shift_;
  Word reciprocal_;
};

/// Divisions side by side: one waits for itself at every word, and four don't wait for each other.
struct Divisions {
  static constexpr std::size_t most = 4;

  std::array<Divisor, most> divisors;
  std::array<Word, most> rests;  // what stands before a row, below its divisor
  std::array<const Word*, most> rows;
  std::array<Word*, most> quotients;
};

/// Divides so many rows, and cuts the quotients off. A row may be its own quotient.
void Divide(Divisions& divisions, std::size_t ways, std::size_t count);

/// Fractions whose words are lifted to the top of theirs: the high half of a product with one is
/// then what it passes on to the next column.
inline constexpr unsigned lift = 64 - bits;

/// The powers of a fraction from the first on, lifted, each so many words behind the one before;
/// the fraction becomes the last of them.
void Lift_Powers(Word* fraction, std::size_t count, std::size_t powers, Word* lifted,
                 std::size_t apart);

/// The lowest word of the product of a row and a lifted fraction, lifted as well. It runs round,
/// and is less than 2 count + 2 units too small.
inline Word Lowest_Of_Product(const Word* row, const Word* lifted, std::size_t count) {
  Word passed_on = 0;
  Word lowest = 0;
  for (std::size_t i = 0; i < count; ++i) {
    passed_on += static_cast<Word>(Wide{row[i]} * lifted[i] >> 64U);
    lowest += row[i + 1] * lifted[i];
  }
  return lowest + (passed_on << lift);
}

/// A few lifted fractions and what they are multiplied by; a factor of 0 stands for none. The
/// factors together are below 2^31.
struct Multiples {
  static constexpr std::size_t most = 4;

  std::array<const Word*, most> lifted;
  std::array<Word, most> factors;
};

/// The sum of multiples, every other one with a minus if they alternate, as a row behind the point;
/// gives what stands before it. It is not negative.
Word Sum_Of(const Multiples& multiples, bool alternates, std::size_t count, Word* row);

/// Adds multiples to a row behind the point, and gives what stands before it then.
Word Add_Multiples(const Multiples& multiples, std::size_t count, Word* row);

}  // namespace quorvex::columns
