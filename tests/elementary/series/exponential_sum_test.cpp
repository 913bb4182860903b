// e to a small power against an independent library.
#include "elementary/series/exponential_sum.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "arith/operation/step_number.h"
#include "support/random_numbers.h"
#include "support/real_number.h"

namespace quorvex {
namespace {

TEST(Exponential_Less_One, IsRightToFourDigitsMore) {
  Random_Numbers random(91);
  for (int round = 0; round < 400; ++round) {
    const std::size_t digits = 1 + random.below(random.one_in(20) ? 4000 : 300);
    std::string r = "0.0" + std::string(random.one_in(3) ? random.below(16) : 0, '0');
    r += random.one_of("159") + random.digits(1 + random.below(digits + 30)) + "7";
    Real_Number exact(r, Bits_For(static_cast<double>(digits + r.size())));
    mpfr_expm1(exact.value(), exact.value(), MPFR_RNDN);
    const Step_Number result(Exponential_Less_One(Step_Number(r).in_limbs(), digits));
    ASSERT_LT(exact.distance(result.text(), -static_cast<double>(digits) - 4), 1)
        << r << " to " << digits;
  }
}

}  // namespace
}  // namespace quorvex
