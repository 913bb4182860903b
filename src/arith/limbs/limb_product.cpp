// Products of numbers in limbs, of which only so many digits are wanted.
#include <algorithm>
#include <array>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/limbs/limb_number.h"
#include "expects.h"
#include "host/run_time_failure.h"
#include "text/tokens.h"

namespace quorvex::limbs {
namespace {

// A column as three numbers that count for it, its neighbour and the next.
struct Parted {
  Limb limb;
  Limb above;
  Limb far_above;
};

// Of a column below 2^(64 + shift) and 9.2 * 10^36: the first below 3.2 bases, the second
// below 9.2.
template <unsigned shift>
Parted Part_In_Two(Wide column) {
  constexpr auto reciprocal = static_cast<Limb>((Wide{1} << (64U + shift)) / base);
  const auto above =
      static_cast<Limb>(Wide{static_cast<Limb>(column >> shift)} * reciprocal >> 64U);
  return {static_cast<Limb>(column) - above * base, above, 0};
}

// Of at most nine products.
Parted Part_Few(Wide column) {
  return Part_In_Two<59>(column);
}

// Of at most 340 products: the second below 2.1 bases, the third below 340.
Parted Part(Wide column) {
  constexpr Wide square = Wide{base} * base;
  constexpr auto square_high = static_cast<Limb>(square >> 64U) + 1;
  const Limb far_above = static_cast<Limb>(column >> 64U) / square_high;
  Parted parted = Part_In_Two<57>(column - far_above * square);
  parted.far_above = far_above;
  return parted;
}

// Adds parted columns from the lowest. They are parted before, so that none waits for the carries
// of those below it.
class Column_Sum {
 public:
  Limb next(const Parted& parted) {
    const Limb sum = parted.limb + from_below_;
    const Limb bases = sum / base;
    const Limb limb = sum - bases * base + carry_;
    const auto runs_over = static_cast<Limb>(limb >= base);
    carry_ = bases + runs_over;
    from_below_ = parted.above + from_far_below_;
    from_far_below_ = parted.far_above;
    return limb - runs_over * base;
  }

 private:
  Limb from_below_ = 0;
  Limb from_far_below_ = 0;
  Limb carry_ = 0;
};

// Limbs of the columns from `first` on: those below are left out.
void Multiply_From(Limb* out, const Number& a, const Number& b, std::size_t first) {
  const std::size_t x_count = a.count();
  const std::size_t y_count = b.count();
  Column_Sum sum;
  for (std::size_t place = first; place + 1 < x_count + y_count; ++place) {
    const std::size_t begin = place < y_count ? 0 : place - y_count + 1;
    const std::size_t end = std::min(place + 1, x_count);
    const Limb* const x = a.data();
    const Limb* const y = b.data() + place;
    Wide column = 0;
    for (std::size_t i = begin; i < end; ++i) column += Wide{x[i]} * *(y - i);
    out[place] = sum.next(Part(column));
  }
  out[x_count + y_count - 1] = sum.next({});
}

// So many limbs in each factor are multiplied in columns of equal length, filled up with zeros:
// more products, but no branch that has to be guessed.
constexpr std::size_t few_limbs = 8;

template <std::size_t... i>
Wide Full_Column(const Limb* x, const Limb* y, std::index_sequence<i...> /*limbs*/) {
  return (... + (Wide{x[i]} * *(y - i)));
}

template <std::size_t x_count>
void Multiply_Few(Limb* out, const Number& a, const Number& b, std::size_t first) {
  const std::size_t count = x_count + b.count();
  std::array<Limb, 3 * few_limbs> padded;
  std::fill_n(padded.data(), x_count + count, 0);
  Limb* const y = padded.data() + x_count;
  Copy(b.data(), b.count(), y);
  Column_Sum sum;
  for (std::size_t place = first; place + 1 < count; ++place) {
    out[place] =
        sum.next(Part_Few(Full_Column(a.data(), y + place, std::make_index_sequence<x_count>())));
  }
  out[count - 1] = sum.next({});
}

// Columns of numbers of equal length, which is known: each has its own products alone.
template <std::size_t place, std::size_t... i>
Wide Column_Of(const Limb* x, const Limb* y, std::index_sequence<i...> /*products*/) {
  return (... + (Wide{x[place - i]} * y[i]));
}

template <std::size_t count, std::size_t place>
Wide Equal_Column(const Limb* x, const Limb* y) {
  if constexpr (place < count) {
    return Column_Of<place>(x, y, std::make_index_sequence<place + 1>());
  } else {
    constexpr std::size_t first = place - count + 1;
    return Column_Of<count - 1>(x, y + first, std::make_index_sequence<count - first>());
  }
}

// Of a square, products of two different limbs stand in their column twice.
template <std::size_t count, std::size_t place>
Wide Square_Column(const Limb* x) {
  constexpr std::size_t first = place < count ? 0 : place - count + 1;
  constexpr std::size_t pairs = (place - 2 * first + 1) / 2;
  Wide column = 0;
  if constexpr (pairs > 0) {
    column =
        2 * Column_Of<place - 2 * first>(x + first, x + first, std::make_index_sequence<pairs>());
  }
  if constexpr (place % 2 == 0) column += Wide{x[place / 2]} * x[place / 2];
  return column;
}

template <std::size_t count, std::size_t... place>
void Square_Few(Limb* out, const Limb* x, std::index_sequence<place...> /*columns*/) {
  Column_Sum sum;
  ((out[place] = sum.next(Part_Few(Square_Column<count, place>(x)))), ...);
  out[2 * count - 1] = sum.next({});
}

template <std::size_t count, std::size_t... place>
void Multiply_Equal(Limb* out, const Limb* x, const Limb* y,
                    std::index_sequence<place...> /*columns*/) {
  Column_Sum sum;
  ((out[place] = sum.next(Part_Few(Equal_Column<count, place>(x, y)))), ...);
  out[2 * count - 1] = sum.next({});
}

template <std::size_t count>
void Multiply_Few_Equal(Limb* out, const Limb* x, const Limb* y) {
  constexpr auto columns = std::make_index_sequence<2 * count - 1>();
  return x == y ? Square_Few<count>(out, x, columns) : Multiply_Equal<count>(out, x, y, columns);
}

// All columns of a square: the products of two different limbs stand there twice.
void Square_From(Limb* out, const Number& number, std::size_t first) {
  const std::size_t count = number.count();
  const Limb* const x = number.data();
  Column_Sum sum;
  for (std::size_t place = first; place + 1 < 2 * count; ++place) {
    std::size_t low = place < count ? 0 : place - count + 1;
    std::size_t high = place - low;
    Wide column = 0;
    for (; low < high; ++low, --high) column += Wide{x[low]} * x[high];
    column *= 2;
    if (low == high) column += Wide{x[low]} * x[low];
    out[place] = sum.next(Part(column));
  }
  out[2 * count - 1] = sum.next({});
}

template <std::size_t... i>
constexpr auto Routines_For_Few(std::index_sequence<i...> /*counts*/) {
  return std::array{&Multiply_Few<i + 1>...};
}

template <std::size_t... i>
constexpr auto Routines_For_Few_Equal(std::index_sequence<i...> /*counts*/) {
  return std::array{&Multiply_Few_Equal<i + 1>...};
}

void Multiply_Columns(Limb* out, const Number& a, const Number& b, std::size_t first) {
  constexpr auto counts = std::make_index_sequence<few_limbs>();
  constexpr auto for_few = Routines_For_Few(counts);
  constexpr auto for_few_equal = Routines_For_Few_Equal(counts);
  if (a.count() > few_limbs || b.count() > few_limbs) {
    return &a == &b ? Square_From(out, a, first) : Multiply_From(out, a, b, first);
  }
  if (a.count() == b.count()) return for_few_equal[a.count() - 1](out, a.data(), b.data());
  for_few[a.count() - 1](out, a, b, first);
}

// Of so many limbs in the shorter factor, products by the library cost less than those of limbs.
constexpr std::size_t long_factor = 100;

// The lowest column to begin with. What those below it add stays below a unit for each limb of the
// shorter factor in the limb above it: that limb guards those above, one of which holds the first
// digit that is dropped.
std::size_t First_Column(std::size_t count, std::size_t digits_kept) {
  const std::size_t needed = Count_For(digits_kept) + 4;
  return count > needed + 2 ? count - needed : 0;
}

// By the library of products.
void Multiply_Long(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  const NumberText product = Multiply_Digits(Digits_Of(a), Digits_Of(b));
  if (Has_Token_Mark(product)) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "There is no room for a product.");
  }
  const std::size_t count = Count_For(product.size());
  Scratch scratch(count + 1);
  Read_Number(product, scratch.data());
  Raw_Number raw{scratch.data(), count, a.low + b.low, a.negative != b.negative};
  Round(raw, digits_kept, result);
}

}  // namespace

void Multiply(const Number& a, const Number& b, std::size_t digits_kept, Number& result) {
  if (a.is_zero() || b.is_zero()) return Trim({}, result);
  const std::size_t shorter = std::min(a.count(), b.count());
  if (shorter >= long_factor) return Multiply_Long(a, b, digits_kept, result);
  const std::size_t count = a.count() + b.count();
  Scratch scratch(count + 1);
  Limb* const out = scratch.data();
  std::size_t first = First_Column(count, digits_kept);
  Multiply_Columns(out, a, b, first);
  if (first > 0 && out[first + 1] >= base - shorter - 1) {
    first = 0;
    Multiply_Columns(out, a, b, first);
  }
  Raw_Number raw{out + first, count - first, a.low + b.low + static_cast<std::int64_t>(first),
                 a.negative != b.negative};
  Round(raw, digits_kept, result);
}

}  // namespace quorvex::limbs
