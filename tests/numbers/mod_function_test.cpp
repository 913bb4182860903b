// Remainders against the three operations that define them and against exact whole numbers.
#include "numbers/mod_function.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "numbers/parity.h"
#include "numbers/whole_part.h"
#include "support/exact_decimal.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
#include "support/text_steps.h"
#include "support/whole_number.h"
#include "support/without_libraries.h"
#include "text/clean_up_number.h"
#include "text/close_number.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

constexpr int as_it_comes = 1;

NumberText Mod(const HostValue& dividend, const HostValue& divisor, bool truncate,
               double limit = 1e6) {
  const HostValue digits = limit;
  return Mod_Function(dividend, divisor, truncate, as_it_comes,
                      {.maximum_significant_digits = digits});
}

NumberText Operate(std::int16_t operation, std::string_view a, std::string_view b, double limit) {
  return Text_Steps{limit}.of(operation, a, b);
}

// The operations as the result is defined by them.
NumberText Mod_By_Operations(const std::string& dividend, const std::string& divisor, bool truncate,
                             double limit) {
  const auto length = static_cast<double>(dividend.size() + divisor.size());
  const NumberText quotient = Operate(operation::divide, dividend, divisor, length + 5);
  const NumberText whole = truncate ? Trunc_Function(quotient) : Int_Function(quotient);
  const auto both = static_cast<double>(divisor.size() + whole.size());
  const NumberText product = Operate(operation::multiply, divisor, whole, both + 5);
  return Operate(operation::subtract, dividend, product, limit);
}

// What formatting cuts at the end.
NumberText Close_Again(const NumberText& number, double limit) {
  const HostValue digits = limit;
  return Close_Text(number, {.maximum_significant_digits = digits});
}

bool Is_Nothing(const std::string& number) {
  return Exact_Decimal(number).sign() == 0;
}

// A divisor that goes into the dividend, or nearly: where the quotient is almost whole.
std::string Near_Multiple(const std::string& divisor, Random_Numbers& random) {
  const NumberText product =
      Operate(operation::multiply, divisor, "1" + random.digits(1 + random.length(60)), 1e6);
  const char* const nudge[] = {"0", "1", "-1", "0.0000000001", "-1E-70"};
  return Operate(operation::add, product, nudge[random.below(std::size(nudge))], 1e6);
}

TEST(Remainders, AreThoseOfTheOperations) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    Random_Numbers random(seed);
    const std::size_t most = seed % 20 == 0 ? 3000 : 70;
    const std::string divisor = random.number(random.one_in(2) ? most : 30);
    if (Is_Nothing(divisor)) continue;
    const std::string dividend =
        random.one_in(3) ? Near_Multiple(divisor, random) : random.number(most);
    const bool truncate = random.one_in(2);
    const double limit = random.one_in(2) ? 100000 : static_cast<double>(random.below(40));
    ASSERT_EQ(Mod(dividend, divisor, truncate, limit),
              Close_Again(Mod_By_Operations(dividend, divisor, truncate, limit), limit))
        << seed << "\n"
        << dividend << "\n"
        << divisor;
  }
}

// Long division reaches to 48 limbs of eighteen digits, of divisor or quotient.
TEST(Remainders, OfLongNumbersAreExact) {
  const std::size_t lengths[] = {17, 18, 19, 36, 37, 863, 864, 865, 882, 883, 2400, 5000};
  Random_Numbers random(82);
  for (const std::size_t divisor_length : lengths) {
    for (const std::size_t quotient_length : lengths) {
      for (int round = 0; round < 6; ++round) {
        std::string divisor = random.digits(divisor_length);
        if (divisor.front() == '0') divisor.front() = '1';
        const std::string dividend = "9" + random.digits(divisor_length + quotient_length - 2);
        ASSERT_EQ(Mod(dividend, divisor, true),
                  (Whole_Number(dividend) % Whole_Number(divisor)).text())
            << dividend << " by " << divisor;
      }
    }
  }
}

TEST(Remainders, OfMultiplesOfLongNumbersAreNothing) {
  Random_Numbers random(83);
  for (const std::size_t length : {30U, 1200U, 3000U}) {
    const std::string divisor = "3" + random.digits(length);
    for (const char* nudge : {"0", "1", "-1"}) {
      const NumberText square = Operate(operation::multiply, divisor, divisor, 1e6);
      const NumberText dividend = Operate(operation::add, square, nudge, 1e6);
      const NumberText expected =
          *nudge == '-' ? Operate(operation::subtract, divisor, "1", 1e6) : NumberText(nudge);
      ASSERT_EQ(Mod(dividend, divisor, false), expected) << length;
    }
  }
}

TEST(Remainders, AreAnErrorWhereNoProductsCanBeFormed) {
  const Without_Libraries without;
  EXPECT_EQ(Mod("7", "3", false), "#VALUE!");
  EXPECT_EQ(Mod("2", "3", true), "#VALUE!");
  EXPECT_EQ(Mod("0", "3", false), "0");
}

TEST(Remainders, CanBeBrokenOff) {
  const HostValue dividend(std::string(3'000'000, '7'));
  const Interruption_Guard impatient;
  for (const std::size_t length : {5U, 50U, 5000U}) {
    EXPECT_EQ(Failure_Of([&] { Mod(dividend, std::string(length, '3'), true); }),
              Failure_Number::interrupted)
        << length;
  }
}

TEST(Remainders, NeedRoomForWhatIsWrittenOut) {
  const Memory_Guard little(10'000'000);
  EXPECT_EQ(Failure_Of([] { Mod("1E+900000000", "7", true); }), Failure_Number::out_of_memory);
  EXPECT_EQ(Failure_Of([] { IsOdd_Function("1E+900000000"); }), Failure_Number::out_of_memory);
}

}  // namespace
}  // namespace quorvex
