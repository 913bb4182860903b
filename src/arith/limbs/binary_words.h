// Fixed-point numbers in words of 64 bits, for long chains of products and quotients that are cut
// off and not rounded.
//
// The whole numbers of fractions/exact_divisor are words of 64 bits too, and have no operation in
// common with these: they are exact, shrink at every step, and are divided by each other.
#pragma once

#include <cstddef>
#include <cstdint>

#include "arith/limbs/limb_division.h"
#include "arith/limbs/limb_number.h"

namespace quorvex::words {

using Word = limbs::Limb;

/// Words, least first. The first of a fixed-point number is its fraction; the last is not 0, except
/// where it is the only one.
struct Span {
  Word* words;
  std::size_t count;
};

/// The room for `From_Decimal` of a number below 10^places.
std::size_t Room_For(std::size_t places);

/// Fixed-point words of the magnitude of number * 10^shift, at most 20 units of 2^-64 too small.
Span From_Decimal(const limbs::Number& number, std::int64_t shift, Word* room);

/// The highest `count` words of a fraction, at most two units of the last too small.
void Fraction_From_Decimal(const limbs::Number& number, std::size_t count, Word* out);

/// The number of whole words, first of them no fraction, times 10^-shift.
limbs::Number To_Decimal(Span whole, std::int64_t shift, bool negative);

/// Turns `a` into its product with a fraction, whose words end at `fraction_end` and are no fewer
/// than those of `a`. At most a unit of 2^-64 for each word and two more too small.
void Multiply_By_Fraction(Span& a, const Word* fraction_end);

/// a / divisor into `out`, which may be that of `a`, cut off.
Span Divide(Span a, const limbs::Divisor& divisor, Word* out);

/// a + b, in the words of `a`. What runs over is lost.
void Add(Span a, Span b);

/// a - b, in the words of `a`.
void Subtract(Span a, Span b);

/// a / b to 15 digits. Where the counts of words differ by two or more,
/// the ratio is only known to be above 1 or below.
double Ratio(Span a, Span b);

}  // namespace quorvex::words
