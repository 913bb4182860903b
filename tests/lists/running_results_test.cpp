// Running sums and products against the plain chain of operations that they stand for.
#include <gtest/gtest.h>

#include <string>

#include "arith/do_operation.h"
#include "lists/random_lists.h"
#include "lists/running_product.h"
#include "lists/running_sum.h"
#include "support/exact_decimal.h"
#include "support/surroundings.h"
#include "support/without_libraries.h"
#include "text/options.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// One operation after the other, each writing its result out.
class Chain {
 public:
  Chain(std::int16_t operation, const char* start) : operation_(operation), text_(start) {}

  bool take(const std::string& element, double msd) {
    const HostValue limit = msd;
    NumberText next = Do_Operation(operation_, text_, element,
                                   {.maximum_significant_digits = limit}, {.intermediate = true});
    if (Has_Token_Mark(next)) return false;
    text_ = next;
    return true;
  }

  const NumberText& text() const { return text_; }

 private:
  std::int16_t operation_;
  NumberText text_;
};

// A limit that stays away, or comes at some place of the list: near the lengths that occur, or
// none at all.
struct Limit {
  Limit(Random_Numbers& random, std::size_t count)
      : place(random.one_in(2) ? count : random.below(count)),
        digits(random.one_in(4) ? static_cast<double>(random.below(5))
                                : static_cast<double>(random.below(300))) {}
  double at(std::size_t element) const { return element < place ? maximum_digits : digits; }

  std::size_t place;
  double digits;
};

template <typename Running, typename Take>
void Compare_With_Chain(unsigned seed, std::size_t longest, Chain chain, const Take& take) {
  Random_Lists lists(seed);
  const std::size_t count = 1 + lists.random().below(40);
  const Limit limit(lists.random(), count);
  Running running;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string element = lists.element(longest);
    const double msd = limit.at(i);
    const bool taken = chain.take(element, msd);
    take(running, element, msd, taken);
    if (lists.random().one_in(4)) {
      ASSERT_EQ(running.text(), chain.text()) << seed << ' ' << element;
    }
  }
  ASSERT_EQ(running.text(), chain.text()) << seed;
}

TEST(RunningSum, IsTheChainOfAdditions) {
  In_Each_Locale([] {
    for (unsigned seed = 0; seed < 3000 && !testing::Test::HasFatalFailure(); ++seed) {
      Compare_With_Chain<Running_Sum>(
          seed, seed % 10 == 0 ? 3000 : 70, Chain(operation::add, "0"),
          [](Running_Sum& sum, const std::string& element, double msd, bool taken) {
            ASSERT_EQ(sum.add(element, msd), taken) << element;
          });
    }
  });
}

TEST(RunningProduct, IsTheChainOfProducts) {
  In_Each_Locale([] {
    for (unsigned seed = 0; seed < 1500 && !testing::Test::HasFatalFailure(); ++seed) {
      Compare_With_Chain<Running_Product>(seed, seed % 10 == 0 ? 300 : 30,
                                          Chain(operation::multiply, "1"),
                                          [](Running_Product& product, const std::string& element,
                                             double msd, bool) { product.multiply(element, msd); });
    }
  });
}

TEST(RunningSum, CarriesThroughAllDigitsAndBack) {
  const std::string nines(1000, '9');
  Running_Sum sum;
  Exact_Decimal exact("0");
  for (const std::string& element :
       {nines + "." + nines, "0." + std::string(999, '0') + "1", "-" + nines, "-1." + nines + "5",
        "1" + std::string(3000, '0'), "-1" + std::string(3000, '0')}) {
    ASSERT_TRUE(sum.add(element, maximum_digits));
    exact = exact + Exact_Decimal(element);
    EXPECT_EQ(sum.text(), exact.text());
  }
}

TEST(RunningSum, SettlesCarriesBeforeTheyOverflow) {
  for (const char* element : {"9", "99999", "0.9999", "99999999999.99999999", "-99"}) {
    Exact_Decimal exact("0");
    for (std::size_t count = 1; count < 100; ++count) {
      exact = exact + Exact_Decimal(element);
      Running_Sum sum;
      for (std::size_t i = 0; i < count; ++i) sum.add(element, maximum_digits);
      ASSERT_EQ(sum.text(), exact.text()) << count;
    }
  }
}

// Bytes, lanes and what is admitted at once run full at different counts.
TEST(RunningSum, KeepsColumnsApartForAnyCount) {
  const auto zeros = [](std::size_t count) { return std::string(count, '0'); };
  for (const std::size_t count : {27U, 28U, 29U, 7279U, 7280U, 7281U, 250'000U}) {
    // So many times the number below a power of ten, on both sides of the point.
    const std::string text = std::to_string(count);
    const Exact_Decimal expected =
        Exact_Decimal(text + zeros(112)) + -Exact_Decimal("0." + zeros(128 - text.size()) + text);
    Running_Sum sum;
    for (std::size_t i = 0; i < count; ++i) {
      ASSERT_TRUE(sum.add(std::string(112, '9') + "." + std::string(128, '9'), maximum_digits));
    }
    ASSERT_EQ(sum.text(), expected.text()) << count;
  }
}

// Whatever the road of each, a sum that a limit just leaves alone is not cut, and one that it cuts
// is.
TEST(RunningSum, TellsToTheDigitWhatALimitCuts) {
  const std::string nines(20, '9');
  for (double msd = 15; msd < 45; ++msd) {
    Running_Sum sum;
    Chain chain(operation::add, "0");
    for (const char* more : {"", ".5", "$", "-", ".", "", "-", ".25"}) {
      const std::string element = *more == '.' ? nines + more : more + nines;
      for (int i = 0; i < 12; ++i) {
        ASSERT_EQ(sum.add(element, msd), chain.take(element, msd));
        if (i % 5 == 0) {
          ASSERT_EQ(sum.text(), chain.text()) << msd << ' ' << element;
        }
      }
    }
  }
}

// Passed over as if it were no number, an element would make the result wrong.
TEST(RunningResults, FailWhereAnElementHasNoRoom) {
  for (const double msd : {3.0, maximum_digits}) {
    Running_Sum sum;
    Running_Product product;
    for (int i = 0; i < 3; ++i) {
      ASSERT_TRUE(sum.add("1.2345", msd));
      product.multiply("1.2345", msd);
    }
    const Memory_Guard poor(0);
    EXPECT_THROW(sum.add("1E+2000000000", msd), Run_Time_Failure) << msd;
    EXPECT_THROW(product.multiply("1E+2000000000", msd), Run_Time_Failure) << msd;
  }
}

TEST(RunningProduct, IsOneWhereProductsCantBeFormed) {
  const Without_Libraries without;
  Running_Product product;
  product.multiply("7", maximum_digits);
  EXPECT_EQ(product.text(), "1");
  product.multiply("0", maximum_digits);
  EXPECT_EQ(product.text(), "0");
}

}  // namespace
}  // namespace quorvex
