#include "arith/limbs/limb_columns.h"

#include <algorithm>
#include <array>
#include <utility>

#include "expects.h"

namespace quorvex::limbs {
namespace {

// Columns are parted before they are added, so that none waits for the carries of those below it.

// A column as two numbers, one that counts for it and one for its neighbour.
struct Two_Parts {
  Limb limb;
  Limb above;
};

// Of a column below 2^(64 + shift) and 9.2 * 10^36: the first below 3.2 bases, the second
// below 9.2.
template <unsigned shift>
Two_Parts Part_In_Two(Wide column) {
  constexpr auto reciprocal = static_cast<Limb>((Wide{1} << (64U + shift)) / base);
  const auto above =
      static_cast<Limb>(Wide{static_cast<Limb>(column >> shift)} * reciprocal >> 64U);
  return {static_cast<Limb>(column) - above * base, above};
}

// Adds columns of at most nine products, from the lowest.
class Few_Sum {
 public:
  Limb next(Wide column) {
    const Two_Parts parts = Part_In_Two<59>(column);
    const Limb limb = add(parts.limb);
    from_below_ = parts.above;
    return limb;
  }

  Limb last() { return add(0); }

 private:
  Limb add(Limb part) {
    const Limb sum = part + from_below_;
    const Limb bases = sum / base;
    const Limb limb = sum - bases * base + carry_;
    const auto runs_over = static_cast<Limb>(limb >= base);
    carry_ = bases + runs_over;
    return limb - runs_over * base;
  }

  Limb from_below_ = 0;
  Limb carry_ = 0;
};

constexpr std::size_t most_products = 340;  // that have room in a column

// Adds columns of so many products at most, from the lowest. What is left of one without the
// squares of the base is below such a square and 342 * 2^64. So its first part is below 1.6 bases,
// its second no more than a trifle above one, and a sum below three.
class Column_Sum {
 public:
  Limb next(Wide column) {
    constexpr Wide square = Wide{base} * base;
    constexpr auto square_high = static_cast<Limb>(square >> 64U) + 1;
    const Limb far_above = static_cast<Limb>(column >> 64U) / square_high;
    const Two_Parts parts = Part_In_Two<57>(column - far_above * square);
    const Limb limb = add(parts.limb);
    from_below_ = parts.above + from_far_below_;
    from_far_below_ = far_above;
    return limb;
  }

  Limb last() { return add(0); }

 private:
  Limb add(Limb part) {
    const Limb sum = part + from_below_ + carry_;
    carry_ = static_cast<Limb>(sum >= base) + static_cast<Limb>(sum >= 2 * base);
    return sum - carry_ * base;
  }

  Limb from_below_ = 0;
  Limb from_far_below_ = 0;
  Limb carry_ = 0;
};

// Limbs of the columns from `first` on, which is even: those below it are left out. Two columns
// take limbs in turn: they need half the steps, and neither waits for the other.
void Multiply_From(Limb* out, Factor a, Factor b, std::size_t first) {
  const auto [x, x_count] = a;
  const auto [y, y_count] = b;
  const std::size_t count = x_count + y_count;
  Column_Sum sum;
  std::size_t place = first;
  for (; place + 2 < count; place += 2) {
    Wide column = 0;
    Wide next = 0;
    std::size_t i = 0;
    if (place + 1 >= y_count) {
      i = place + 2 - y_count;
      column = Wide{x[i - 1]} * y[y_count - 1];
    }
    if (place + 1 < x_count) next = Wide{x[place + 1]} * *y;
    const std::size_t end = std::min(place + 1, x_count);
    for (; i < end; ++i) {
      const Limb* const other = y + (place - i);
      column += Wide{x[i]} * other[0];
      next += Wide{x[i]} * other[1];
    }
    out[place] = sum.next(column);
    out[place + 1] = sum.next(next);
  }
  if (place + 2 == count) out[place] = sum.next(Wide{x[x_count - 1]} * y[y_count - 1]);
  out[count - 1] = sum.last();
}

// The same of a square: products of two different limbs stand in their column twice.
void Square_From(Limb* out, Factor number, std::size_t first) {
  const auto [x, count] = number;
  Column_Sum sum;
  for (std::size_t place = first; place + 2 < 2 * count; place += 2) {
    const std::size_t middle = place / 2;
    Wide column = 0;
    Wide next = Wide{x[middle]} * x[middle + 1];
    std::size_t i = 0;
    if (place + 1 >= count) {
      i = place + 2 - count;
      column = Wide{x[i - 1]} * x[count - 1];
    }
    for (; i < middle; ++i) {
      const Limb* const other = x + (place - i);
      column += Wide{x[i]} * other[0];
      next += Wide{x[i]} * other[1];
    }
    out[place] = sum.next(2 * column + Wide{x[middle]} * x[middle]);
    out[place + 1] = sum.next(2 * next);
  }
  out[2 * count - 2] = sum.next(Wide{x[count - 1]} * x[count - 1]);
  out[2 * count - 1] = sum.last();
}

// So many limbs in each factor are multiplied in columns of equal length, filled up with zeros:
// more products, but no branch that has to be guessed.
constexpr std::size_t few_limbs = 8;

template <std::size_t... i>
Wide Full_Column(const Limb* x, const Limb* y, std::index_sequence<i...> /*limbs*/) {
  return (... + (Wide{x[i]} * *(y - i)));
}

template <std::size_t x_count>
void Multiply_Few(Limb* out, Factor a, Factor b, std::size_t first) {
  const std::size_t count = x_count + b.count;
  std::array<Limb, 3 * few_limbs> padded;
  std::fill_n(padded.data(), x_count + count, 0);
  Limb* const y = padded.data() + x_count;
  Copy(b.limbs, b.count, y);
  Few_Sum sum;
  for (std::size_t place = first; place + 1 < count; ++place) {
    out[place] = sum.next(Full_Column(a.limbs, y + place, std::make_index_sequence<x_count>()));
  }
  out[count - 1] = sum.last();
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
  Few_Sum sum;
  ((out[place] = sum.next(Square_Column<count, place>(x))), ...);
  out[2 * count - 1] = sum.last();
}

template <std::size_t count, std::size_t... place>
void Multiply_Equal(Limb* out, const Limb* x, const Limb* y,
                    std::index_sequence<place...> /*columns*/) {
  Few_Sum sum;
  ((out[place] = sum.next(Equal_Column<count, place>(x, y))), ...);
  out[2 * count - 1] = sum.last();
}

template <std::size_t count>
void Multiply_Few_Equal(Limb* out, const Limb* x, const Limb* y) {
  constexpr auto columns = std::make_index_sequence<2 * count - 1>();
  return x == y ? Square_Few<count>(out, x, columns) : Multiply_Equal<count>(out, x, y, columns);
}

template <std::size_t... i>
constexpr auto Routines_For_Few(std::index_sequence<i...> /*counts*/) {
  return std::array{&Multiply_Few<i + 1>...};
}

template <std::size_t... i>
constexpr auto Routines_For_Few_Equal(std::index_sequence<i...> /*counts*/) {
  return std::array{&Multiply_Few_Equal<i + 1>...};
}

}  // namespace

void Multiply_Columns(Limb* out, Factor a, Factor b, std::size_t first) {
  Expects(first % 2 == 0 && std::min(a.count, b.count) <= most_products);
  constexpr auto counts = std::make_index_sequence<few_limbs>();
  constexpr auto for_few = Routines_For_Few(counts);
  constexpr auto for_few_equal = Routines_For_Few_Equal(counts);
  if (a.count > few_limbs || b.count > few_limbs) {
    const bool is_square = a.limbs == b.limbs && a.count == b.count;
    return is_square ? Square_From(out, a, first) : Multiply_From(out, a, b, first);
  }
  if (a.count == b.count) return for_few_equal[a.count - 1](out, a.limbs, b.limbs);
  for_few[a.count - 1](out, a, b, first);
}

}  // namespace quorvex::limbs
