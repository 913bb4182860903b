// The roads from text to points, from coefficients to groups of digits and from these to text, of
// every kind of instructions: each against what whole numbers tell.
#include "native/generic/kernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "native/generic/columns.h"
#include "native/generic/limb_text.h"
#include "native/generic/scratch.h"
#include "products.h"

namespace quorvex::native {
namespace {

__extension__ using Signed_Wide = __int128;

// Digits of a number with zeros before them.
std::string Padded(std::uint64_t number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return std::string(digits - text.size(), '0') + text;
}

// Numbers of so many digits at the edges of what reciprocals tell.
std::vector<std::uint64_t> Edges(std::size_t digits) {
  std::mt19937_64 random(digits);
  const std::uint64_t base = Ten_To_The(digits);
  std::vector<std::uint64_t> numbers = {0, base - 1};
  for (std::uint64_t power = 1; power < base; power *= 10) {
    for (std::uint64_t times = 1; times < 10; ++times) {
      numbers.push_back(times * power);
      numbers.push_back(times * power - 1);
    }
    numbers.push_back(base - power);
    numbers.push_back(random() % base / power * power);
  }
  for (int i = 0; i < 1000; ++i) numbers.push_back(random() % base);
  return numbers;
}

template <std::size_t digits>
void Expect_Pairs() {
  for (const std::uint64_t number : Edges(digits)) {
    std::string text(digits, ' ');
    Write_Pairs<digits>(text.data(), number);
    EXPECT_EQ(text, Padded(number, digits));
  }
}

TEST(Write_Pairs, Writes_All_Digits) {
  Expect_Pairs<4>();
  Expect_Pairs<8>();
  Expect_Pairs<10>();
  Expect_Pairs<12>();
}

TEST(Limb_Text, Is_Read_And_Written_Whole) {
  for (const std::uint64_t number : Edges(limb_digits)) {
    std::string text(limb_digits, ' ');
    Write_Limb(text.data(), number);
    ASSERT_EQ(text, Padded(number, limb_digits));
    Limb_Reader reader;
    EXPECT_EQ(reader.read(text.data()), number);
    EXPECT_TRUE(reader.has_only_digits());
  }
}

// Against division by the compiler. The largest columns leave no room for more than their carries.
TEST(Column_Sum, Parts_The_Largest_Columns) {
  std::mt19937_64 random(1);
  const Wide most = Wide{340} * (limb_base - 1) * (limb_base - 1);
  for (int i = 0; i < 20'000; ++i) {
    Column_Sum sum;
    Wide carry = 0;
    for (int k = 0; k < 12; ++k) {
      const Wide any = (Wide{random()} << 64U) | random();
      const Wide columns[] = {most, most - any % limb_base, any % most, any >> random() % 128U, 0};
      const Wide column = columns[random() % 5];
      carry += column;
      ASSERT_EQ(sum.next(column), static_cast<Limb>(carry % limb_base)) << i << ' ' << k;
      carry /= limb_base;
    }
  }
}

// The digits that points stand for, from those of the highest on; nothing if they are not within
// what balancing leaves, or leave a carry.
std::string Digits_Of(const double* points, std::size_t count, std::int64_t base) {
  const std::size_t digits = base == coarse_grain.base ? 5 : 4;
  std::string text;
  std::int64_t carry = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::int64_t most = base / 2 + 1;
    if (std::abs(points[i]) > static_cast<double>(most)) return {};
    carry += static_cast<std::int64_t>(points[i]);
    const std::int64_t rest = (carry % base + base) % base;
    carry = (carry - rest) / base;
    text.insert(0, Padded(static_cast<std::uint64_t>(rest), digits));
  }
  return carry == 0 ? text : std::string();
}

TEST(Read_Grains, Balances_All_Points) {
  for (const Instructions kind : Kinds_Here()) {
    const Kernels& kernels = Kernels_Of(kind);
    for (const Grain& grain : {coarse_grain, fine_grain}) {
      for (std::size_t size = 1; size < 400; size += 1 + size / 100) {
        for (unsigned pattern = 0; pattern < digit_patterns; ++pattern) {
          const std::string text = Hard_Digits(size, pattern, 1);
          const std::size_t count = (Grains_For(size, grain) + 15) / 16 * 16;
          const Scratch<double> points(count);
          std::fill(points.get(), points.get() + count, 1e300);
          ASSERT_TRUE(kernels.read_grains(text.data(), size, grain, points.get()));
          std::string expected = Digits_Of(points.get(), count, grain.base);
          ASSERT_GE(expected.size(), size);
          expected.erase(0, expected.size() - size);
          ASSERT_EQ(expected, text) << static_cast<int>(kind) << ' ' << grain.digits;
        }
      }
    }
  }
}

// Where coefficient k of a transform of one piece stands.
std::size_t Place_Of(std::size_t k, std::size_t size, std::size_t lanes) {
  const std::size_t point = k % size;
  return 2 * (point / lanes * lanes) + (k < size ? 0 : lanes) + point % lanes;
}

// Coefficients up to the largest of either sign, and single ones that are borrowed from far above.
TEST(Carry_Wave, Carries_Any_Coefficients) {
  std::mt19937_64 random(1);
  const auto below = [&random](std::int64_t bound) {
    return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(bound));
  };
  constexpr std::int64_t most = std::int64_t{1} << 45U;
  for (const Instructions kind : Kinds_Here()) {
    const Kernels& kernels = Kernels_Of(kind);
    for (const Grain& grain : {coarse_grain, fine_grain}) {
      for (int round = 0; round < 400; ++round) {
        const Wave_Length length = {64, 4};
        const std::size_t size = length.coefficients() / 2;
        // Eight coefficients less: the highest carry.
        const std::size_t used = length.coefficients() - 8;
        std::vector<std::int64_t> coefficients(length.coefficients(), 0);
        for (std::size_t k = 0; k < used; ++k) {
          const std::int64_t choices[] = {below(2 * most) - most, most - 1, 1 - most, 0,
                                          below(3) - 1};
          const auto sparse = static_cast<std::size_t>(below(40) == 0 ? 4 : 3);
          coefficients[k] = choices[round % 2 == 0 ? sparse : static_cast<std::size_t>(below(5))];
        }
        coefficients[used - 1] = most - 1;
        const Scratch<double> x(length.coefficients());
        const Scratch<double> groups(length.coefficients());
        for (std::size_t k = 0; k < coefficients.size(); ++k) {
          x.get()[Place_Of(k, size, kernels.lanes)] =
              static_cast<double>(coefficients[k]) * static_cast<double>(size);
        }
        kernels.carry_wave(x.get(), length, grain, size, groups.get());
        Signed_Wide carry = 0;
        const std::int64_t base = grain.base * grain.base;
        for (std::size_t i = 0; i < size; ++i) {
          carry += coefficients[2 * i];
          carry += Signed_Wide{coefficients[2 * i + 1]} * grain.base;
          const auto rest = static_cast<std::int64_t>((carry % base + base) % base);
          carry = (carry - rest) / base;
          ASSERT_EQ(groups.get()[i], static_cast<double>(rest))
              << static_cast<int>(kind) << ' ' << grain.digits << ' ' << round << ' ' << i;
        }
      }
    }
  }
}

TEST(Write_Points, Writes_Numbers_Of_Any_Length) {
  for (const Instructions kind : Kinds_Here()) {
    for (const std::size_t digits : {8U, 10U, 12U}) {
      const std::vector<std::uint64_t> numbers = Edges(digits);
      std::size_t next = 0;
      for (std::size_t count = 1; count < 40; ++count) {
        for (std::size_t top = 1; top <= digits; ++top) {
          // Zeros above do not count, and what stands beyond is none of the number.
          const Scratch<double> points(64);
          std::fill(points.get(), points.get() + 64, static_cast<double>(numbers[1]));
          std::fill(points.get() + count, points.get() + count + top % 3, 0.0);
          std::string expected;
          for (std::size_t i = 0; i + 1 < count; ++i) {
            const std::uint64_t number = numbers[next++ % numbers.size()];
            points.get()[i] = static_cast<double>(number);
            expected.insert(0, Padded(number, digits));
          }
          const std::uint64_t first = Ten_To_The(top) - 1 - next % 7 * (top > 1 ? 1 : 0);
          points.get()[count - 1] = static_cast<double>(first);
          expected.insert(0, std::to_string(first));
          std::string text(expected.size() + 64, ' ');
          const std::size_t written =
              Kernels_Of(kind).write_points(points.get(), count + top % 3, digits, text.data());
          ASSERT_EQ(written, expected.size());
          ASSERT_EQ(text, expected + std::string(64, ' ')) << static_cast<int>(kind);
        }
      }
    }
  }
}

}  // namespace
}  // namespace quorvex::native
