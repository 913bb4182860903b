// The methods for long operands, called past the stair at lengths that others serve as well.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <numbers>
#include <string>

#include "native/generic/kernels.h"
#include "native/generic/wave_length.h"
#include "native/generic/wave_roots.h"
#include "native/stair.h"
#include "products.h"
#include "support/repeated.h"
#include "support/whole_number.h"

namespace quorvex::native {
namespace {

using Method = std::size_t (*)(const Operands&, char*, const Kernels&) noexcept;

std::string Product_By(Method method, const std::string& a, const std::string& b,
                       Instructions kind) {
  std::string out(a.size() + b.size(), ' ');
  const Operands operands{a, b, a == b};
  out.resize(method(operands, out.data(), Kernels_Of(kind)));
  return out;
}

void Expect_Agreement(const std::string& a, const std::string& b) {
  const std::string expected = Product(a, b);
  for (const Instructions kind : Kinds_Here()) {
    EXPECT_TRUE(Product_By(Multiply_By_Waves, a, b, kind) == expected)
        << a.size() << " by " << b.size() << " digits, kind " << static_cast<int>(kind);
    EXPECT_TRUE(Product_By(Multiply_By_Primes, a, b, kind) == expected)
        << a.size() << " by " << b.size() << " digits, kind " << static_cast<int>(kind);
  }
}

// Every length that the transforms have up to some, just filled and a point short of it.
TEST(Long_Products, Agree_At_All_Lengths) {
  for (std::size_t unit = 16; unit <= 16'384; unit *= 2) {
    for (std::size_t units = 4; units < 8; ++units) {
      for (const std::size_t missing : {0U, 1U, 21U}) {
        const std::size_t digits = unit * units * 5 / 2 - missing;
        const auto seed = static_cast<unsigned>(unit + units);
        const std::size_t longer = units % 2 == 0 ? digits : 3 * digits / 2;
        Expect_Agreement(Hard_Digits(longer, seed % 5, seed),
                         Hard_Digits(2 * digits - longer, seed % 3, seed + 1));
      }
    }
  }
}

// Points of the largest size, of one sign or in turns: with five digits they are too large beyond
// some length, with four they are where remainders add them up.
TEST(Long_Products, Bear_The_Largest_Points) {
  for (const std::string part : {"50000", "49999", "4999950000", "5000", "49995000", "50005000"}) {
    for (const std::size_t digits : {1U, 640U, 5000U, 20'000U, 33'333U, 70'000U, 300'000U}) {
      const std::string a = Repeated(part, digits / part.size() + 1).substr(0, digits);
      Expect_Agreement(a, a);
      Expect_Agreement(a, a.substr(0, digits - digits / 3));
      Expect_Agreement(a, a.substr(0, digits / 20 + 1));
    }
  }
}

// What one unit of 2^-54 more would take from the bound of every product.
TEST(Wave_Roots, Are_As_Exact_As_The_Bound_Needs) {
  constexpr std::size_t points = std::size_t{1} << 14U;
  const auto angle_of = [](std::size_t node) {
    long double turn = 0.125L;
    for (std::size_t bit = std::bit_floor(node) / 2; bit > 0; bit /= 2)
      turn = turn / 2 + ((node & bit) != 0 ? 0.25L : 0);
    return turn * 2 * std::numbers::pi_v<long double>;
  };
  constexpr long double most = 0x1.8p-54L;
  for (const std::size_t lanes : {4U, 8U}) {
    Wave_Roots roots{};
    ASSERT_TRUE(Find_Roots(lanes, points, roots));
    const std::size_t blocks = points / (lanes * lanes);
    const std::size_t doubles = 2 * lanes * Block_Factors(lanes);
    for (std::size_t block = 0; block < blocks; ++block) {
      for (std::size_t which = 0; which < Block_Factors(lanes); ++which) {
        for (std::size_t lane = 0; lane < lanes; ++lane) {
          const std::size_t node = lanes * (blocks + block) + lane;
          const long double v = angle_of(2 * node);
          const long double angles[] = {2 * v, v, 3 * v, angle_of(4 * node),
                                        angle_of(4 * node + 2)};
          const double* const value = roots.columns + block * doubles + 2 * lanes * which + lane;
          ASSERT_LT(std::abs(value[0] - std::cos(angles[which])), most) << node << ' ' << which;
          ASSERT_LT(std::abs(value[lanes] - std::sin(angles[which])), most) << node << ' ' << which;
        }
      }
    }
  }
}

}  // namespace
}  // namespace quorvex::native
