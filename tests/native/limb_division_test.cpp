// Columns fall apart into a limb and a carry, at the edges where an estimate is off.
#include "native/generic/limb_division.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvex::native {
namespace {

void Expect_Taken(Wide column) {
  const Wide whole = column;
  const Limb limb = Take_Limb(column);
  EXPECT_TRUE(limb == whole % limb_base && column == whole / limb_base)
      << static_cast<std::uint64_t>(whole >> 64U) << " * 2^64 + "
      << static_cast<std::uint64_t>(whole);
}

TEST(Take_Limb, Divides_Exactly) {
  std::mt19937_64 random(1);
  const Wide most = ~Wide{0} / limb_base;
  for (int i = 0; i < 20'000; ++i) {
    const Wide quotient = ((Wide{random()} << 64U) | random()) >> (60 + random() % 68);
    for (const Wide near : {quotient % most, most - 1 - quotient % (most / 2)}) {
      Expect_Taken(near * limb_base);
      Expect_Taken(near * limb_base + limb_base - 1);
      Expect_Taken(near * limb_base + random() % limb_base);
    }
  }
  // High words just below the base leave the greatest remainder for the estimate to miss.
  for (Wide high = limb_base - 3; high < limb_base; ++high)
    for (Wide low = 0; low < 1000; ++low) Expect_Taken((high << 64U) + ~std::uint64_t{0} - low);
}

}  // namespace
}  // namespace quorvex::native
