#include "arith/limbs/limb_rows.h"

#include <algorithm>
#include <array>

#include "arith/limbs/limb_division.h"
#include "expects.h"

namespace quorvex::limbs {
namespace {

// Calls a routine whose count of rows is known to the compiler.
template <typename Routine>
void With_Ways(std::size_t ways, const Routine& routine) {
  Expects(ways > 0 && ways <= rows_at_once);
  switch (ways) {
    case 1:
      return routine.template operator()<1>();
    case 2:
      return routine.template operator()<2>();
    case 3:
      return routine.template operator()<3>();
    default:
      return routine.template operator()<rows_at_once>();
  }
}

// Of a column of at most 340 products, as a number to the base: the last digit and the one above
// it.
struct Parted_Column {
  explicit Parted_Column(Wide column) {
    constexpr unsigned shift = 4;  // brings the base to the top of a word
    constexpr Limb divisor = base << shift;
    constexpr Limb reciprocal = Reciprocal_Of(divisor);
    constexpr auto word_beyond_bases = static_cast<Limb>((Wide{1} << 64U) % base);
    const auto high = static_cast<Limb>(column >> 64U);
    const Limb bases_of_high = high / base;  // 18 at most, and each is a word of bases
    const Limb rest_of_high = high - bases_of_high * base;
    const Wide left = Wide{rest_of_high} << 64U | static_cast<Limb>(column);
    Limb rest = 0;
    const Limb bases = Divide_Shifted(left << shift, divisor, reciprocal, rest);
    limb = rest >> shift;
    above = (bases % base + bases_of_high * word_beyond_bases) % base;
  }

  Limb limb;
  Limb above;
};

}  // namespace

Row_Table::Row_Table(std::size_t rows, std::size_t width) : width_(width) {
  Require_Memory(static_cast<double>(rows * width) * sizeof(Limb));
  limbs_.resize(rows * width);
}

Number Product_Down_To(std::int64_t low, const Number& a, const Number& b) {
  Number product;
  if (a.is_zero() || b.is_zero()) return product;
  const std::int64_t leading = Leading_Power(a) + Leading_Power(b) + 1;
  const std::int64_t kept = leading - low * static_cast<std::int64_t>(digits) + 1;
  Multiply(a, b, static_cast<std::size_t>(std::max<std::int64_t>(kept, 1)), product);
  return product;
}

void To_Row(const Number& number, std::int64_t low, std::size_t count, Limb* row) {
  Expects(number.top() <= low + static_cast<std::int64_t>(count));
  std::fill_n(row, count, 0);
  const std::int64_t first = std::max(number.low, low);
  if (number.top() <= first) return;
  std::copy(number.data() + (first - number.low), number.data() + number.count(),
            row + (first - low));
}

void Divide_Rows(const Limb* const* rows, const Row_Divisor* divisors, std::size_t ways,
                 std::size_t count, Limb* const* quotients) {
  With_Ways(ways, [&]<std::size_t known_ways>() {
    std::array<Limb, known_ways> rests{};
    for (std::size_t place = count; place-- > 0;) {
      for (std::size_t way = 0; way < known_ways; ++way) {
        quotients[way][place] = divisors[way].divide(rests[way], rows[way][place]);
      }
    }
  });
}

void Divide_In_Turn(const Limb* row, const Row_Divisor* divisors, std::size_t ways,
                    std::size_t count, Limb* const* quotients) {
  With_Ways(ways, [&]<std::size_t known_ways>() {
    std::array<Limb, known_ways> rests{};
    for (std::size_t place = count; place-- > 0;) {
      Limb limb = row[place];
      for (std::size_t way = 0; way < known_ways; ++way) {
        limb = divisors[way].divide(rests[way], limb);
        quotients[way][place] = limb;
      }
    }
  });
}

// A sum's limb is a quotient by two or more. With one from -1 to 1.5 bases, a difference is from
// -1.5 to 2 bases, and its quotient, a rest counted in, from -0.75 to 1.5. With one from 0 to 2, a
// sum is below 3, and its quotient below 2.
void Divide_Sums(Loose_Limb* sum, const Limb* const* rows, const Row_Divisor* divisors,
                 std::size_t ways, std::size_t count, bool subtract) {
  const Loose_Limb sign = subtract ? -1 : 1;
  With_Ways(ways, [&]<std::size_t known_ways>() {
    std::array<Limb, known_ways> rests{};
    for (std::size_t place = count; place-- > 0;) {
      Loose_Limb limb = sum[place];
      for (std::size_t way = 0; way < known_ways; ++way) {
        limb = static_cast<Loose_Limb>(rows[way][place]) + sign * limb;
        limb = divisors[way].divide_signed(rests[way], limb);
      }
      sum[place] = limb;
    }
  });
}

void Add_Rows(Loose_Limb* sum, const Limb* const* rows, std::size_t ways, std::size_t count,
              bool alternate) {
  const Loose_Limb sign = alternate ? -1 : 1;
  With_Ways(ways, [&]<std::size_t known_ways>() {
    for (std::size_t place = 0; place < count; ++place) {
      for (std::size_t way = 0; way < known_ways; ++way) {
        const auto limb = static_cast<Loose_Limb>(rows[way][place]);
        sum[place] += way % 2 == 1 ? sign * limb : limb;
      }
    }
  });
}

void Settle(Loose_Limb* sum, std::size_t count) {
  constexpr auto signed_base = static_cast<Loose_Limb>(base);
  Loose_Limb carry = 0;
  for (std::size_t place = 0; place < count; ++place) {
    const Loose_Limb limb = sum[place] + carry;
    carry = limb / signed_base;
    Loose_Limb rest = limb - carry * signed_base;
    if (rest < 0) {
      rest += signed_base;
      --carry;
    }
    sum[place] = rest;
  }
  Expects(carry == 0);
}

Limb Fraction_Of_Product(const Limb* row, std::size_t count, const Limb* fraction_end,
                         std::size_t zeros) {
  if (zeros > count) return 0;
  constexpr std::size_t most_products = 256;
  // row[i] counts base^(i - 1), and fraction_end[-i] base^-i.
  const Limb* const end = row + count + 1;
  const Limb* above = row + zeros;
  const Limb* below = fraction_end - zeros - 1;
  Limb fraction = 0;
  Wide second = Wide{*above++} * *below;
  do {
    const Limb* const stop = above + std::min<std::ptrdiff_t>(end - above, most_products);
    Wide first = 0;
    for (; above < stop; ++above) {
      first += Wide{*above} * *below--;
      second += Wide{*above} * *below;
    }
    fraction = (fraction + Parted_Column(first).limb + Parted_Column(second).above) % base;
    second = 0;
  } while (above < end);
  return fraction;
}

}  // namespace quorvex::limbs
