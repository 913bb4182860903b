#include "arith/limbs/binary_words.h"

#include <algorithm>

#include "expects.h"

namespace quorvex::words {
namespace {

using limbs::Limb;
using limbs::Wide;

constexpr unsigned word_bits = 64;
constexpr auto limb_digits = static_cast<std::int64_t>(limbs::digits);

Wide Joined(Word high, Word low) {
  return Wide{high} << word_bits | low;
}

void Strip(Span& span) {
  while (span.count > 1 && span.words[span.count - 1] == 0) --span.count;
}

// What is left of an exponent beyond whole limbs.
std::int64_t Beyond_Limbs(std::int64_t exponent) {
  const std::int64_t beyond = exponent % limb_digits;
  return beyond < 0 ? beyond + limb_digits : beyond;
}

// By its last word.
double Leading_Value(Span span) {
  const Word below = span.count > 1 ? span.words[span.count - 2] : 0;
  return static_cast<double>(span.words[span.count - 1]) + static_cast<double>(below) * 0x1p-64;
}

// span * factor + addend. Appends what runs over.
void Multiply_Add(Span& span, Word factor, Word addend) {
  for (std::size_t place = 0; place < span.count; ++place) {
    const Wide sum = Wide{span.words[place]} * factor + addend;
    span.words[place] = static_cast<Word>(sum);
    addend = static_cast<Word>(sum >> word_bits);
  }
  if (addend != 0) span.words[span.count++] = addend;
}

}  // namespace

std::size_t Room_For(std::size_t places) {
  return limbs::Count_For(places) + 3;
}

Span From_Decimal(const limbs::Number& number, std::int64_t shift, Word* room) {
  const std::int64_t beyond = Beyond_Limbs(shift);
  limbs::Scratch scratch(number.count() + 1);
  Limb* const shifted = scratch.data();
  Wide column = 0;
  for (std::size_t place = 0; place < number.count(); ++place) {
    column += Wide{number.data()[place]} * limbs::Ten_To(static_cast<std::size_t>(beyond));
    shifted[place] = limbs::Take_Limb(column);
  }
  shifted[number.count()] = static_cast<Limb>(column);

  const std::int64_t low = number.low + (shift - beyond) / limb_digits;
  const std::int64_t top = low + static_cast<std::int64_t>(number.count()) + 1;
  const auto limb_at = [&](std::int64_t power) {
    return power >= low && power < top ? shifted[power - low] : Limb{0};
  };
  Span whole{room + 1, 0};
  for (std::int64_t power = top; power-- > 0;) Multiply_Add(whole, limbs::base, limb_at(power));
  Wide fraction = Joined(limb_at(-1), 0);
  limbs::Take_Limb(fraction);
  room[0] = static_cast<Word>(fraction);
  return {room, whole.count + 1};
}

void Fraction_From_Decimal(const limbs::Number& number, std::size_t count, Word* out) {
  Expects(!number.is_zero() && !number.negative && number.top() <= 0);
  // 64 bits are 19.3 digits.
  const std::size_t used = count + count / 14 + 1;
  limbs::Scratch scratch(used);
  Limb* const decimals = scratch.data();
  for (std::size_t place = 0; place < used; ++place) {
    const std::int64_t power = static_cast<std::int64_t>(place) - static_cast<std::int64_t>(used);
    const bool is_there = power >= number.low && power < number.top();
    decimals[place] = is_there ? number.data()[power - number.low] : 0;
  }
  for (std::size_t word = count; word-- > 0;) {
    Word carry = 0;
    for (std::size_t place = 0; place < used; ++place) {
      Wide column = Joined(decimals[place], carry);
      decimals[place] = limbs::Take_Limb(column);
      carry = static_cast<Word>(column);
    }
    out[word] = carry;
  }
}

limbs::Number To_Decimal(Span whole, std::int64_t shift, bool negative) {
  const std::int64_t beyond = Beyond_Limbs(-shift);
  limbs::Scratch binary(whole.count + 1);
  limbs::Scratch decimal(whole.count + whole.count / 14 + 3);
  std::copy_n(whole.words, whole.count, binary.data());
  Span left{binary.data(), whole.count};
  Multiply_Add(left, limbs::Ten_To(static_cast<std::size_t>(beyond)), 0);
  std::size_t count = 0;
  for (Strip(left); left.count > 1 || *left.words != 0; Strip(left)) {
    Limb rest = 0;
    for (std::size_t place = left.count; place-- > 0;) {
      Wide column = Joined(rest, left.words[place]);
      rest = limbs::Take_Limb(column);
      left.words[place] = static_cast<Word>(column);
    }
    decimal.data()[count++] = rest;
  }
  limbs::Number number;
  limbs::Trim({decimal.data(), count, -(shift + beyond) / limb_digits, negative}, number);
  return number;
}

void Multiply_By_Fraction(Span& a, const Word* fraction_end) {
  Expects(a.count > 0 && fraction_end != nullptr);
  // Columns from the one below the last place on, of rows whose high part reaches it. The others
  // would add less than a unit each there. A column no longer needs the word below its own.
  Wide sum = 0;
  for (std::size_t column = 0; column < a.count; ++column) {
    const Word* fraction = fraction_end;
    Wide over = 0;
    for (std::size_t row = column; row < a.count; ++row) {
      const Wide product = Wide{a.words[row]} * *--fraction;
      sum += product;
      over += static_cast<Wide>(sum < product);
    }
    if (column > 0) a.words[column - 1] = static_cast<Word>(sum);
    sum = sum >> word_bits | over << word_bits;
  }
  a.words[a.count - 1] = static_cast<Word>(sum);
  Strip(a);
}

Span Divide(Span a, const limbs::Divisor& divisor, Word* out) {
  Expects(a.count > 0);
  const unsigned shift = divisor.shift();
  const Word shifted = divisor.number() << shift;
  Word rest = a.words[a.count - 1] >> (word_bits - shift);
  for (std::size_t place = a.count; place-- > 0;) {
    const Word below = place > 0 ? a.words[place - 1] : 0;
    const Word word = a.words[place] << shift | below >> (word_bits - shift);
    out[place] = limbs::Divide_Shifted(Joined(rest, word), shifted, divisor.reciprocal(), rest);
  }
  Span quotient{out, a.count};
  Strip(quotient);
  return quotient;
}

void Add(Span a, Span b) {
  Expects(a.count >= b.count);
  Word carry = 0;
  for (std::size_t place = 0; place < b.count; ++place) {
    const Wide sum = Wide{a.words[place]} + b.words[place] + carry;
    a.words[place] = static_cast<Word>(sum);
    carry = static_cast<Word>(sum >> word_bits);
  }
  for (std::size_t place = b.count; carry != 0 && place < a.count; ++place) {
    carry = static_cast<Word>(++a.words[place] == 0);
  }
}

void Subtract(Span a, Span b) {
  Expects(a.count >= b.count);
  Word borrow = 0;
  for (std::size_t place = 0; place < b.count; ++place) {
    const Wide difference = Wide{a.words[place]} - b.words[place] - borrow;
    a.words[place] = static_cast<Word>(difference);
    borrow = static_cast<Word>(difference >> word_bits) & 1U;
  }
  for (std::size_t place = b.count; borrow != 0 && place < a.count; ++place) {
    borrow = static_cast<Word>(a.words[place]-- == 0);
  }
  Expects(borrow == 0);
}

double Ratio(Span a, Span b) {
  Expects(a.count > 0 && b.count > 0 && b.words[b.count - 1] > 0);
  constexpr double word = 0x1p64;
  if (a.count > b.count + 1) return word;
  if (a.count + 1 < b.count) return 0;
  const double ratio = Leading_Value(a) / Leading_Value(b);
  if (a.count == b.count) return ratio;
  return a.count > b.count ? ratio * word : ratio / word;
}

}  // namespace quorvex::words
