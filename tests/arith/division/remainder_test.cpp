// Remainders against the three operations that define them and against exact whole numbers.
#include <gmp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "arith/do_operation.h"
#include "host/platform.h"
#include "numbers/mod_function.h"
#include "numbers/parity.h"
#include "numbers/whole_part.h"
#include "support/exact_decimal.h"
#include "support/failures.h"
#include "support/localized.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"
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

NumberText Operate(std::int16_t operation, const HostValue& a, const HostValue& b, double limit) {
  const HostValue digits = limit;
  return Do_Operation(operation, a, b, {.maximum_significant_digits = digits},
                      {.intermediate = true});
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

TEST(Remainders, MakeTheDividendUpWithTheWholeQuotient) {
  In_Each_Locale([] {
    Random_Numbers random(81);
    for (int round = 0; round < 1000; ++round) {
      const std::string dividend = random.number(80);
      const std::string divisor = random.number(40);
      if (Is_Nothing(divisor)) continue;
      const std::string a = Localized(dividend);
      const std::string b = Localized(divisor);
      const NumberText down = Mod(a, b, false);
      const NumberText cut = Mod(a, b, true);
      for (const NumberText& rest : {down, cut}) {
        const NumberText multiple = Operate(operation::subtract, a, rest, 1e6);
        const NumberText quotient = Operate(operation::divide, multiple, b, 1000);
        ASSERT_EQ(Int_Function(quotient), quotient) << dividend << " by " << divisor;
        ASSERT_EQ(Operate(operation::multiply, quotient, b, 1e6),
                  Operate(operation::add, multiple, "0", 1e6));
        ASSERT_EQ(Mod(rest, b, true), rest) << "not less than the divisor";
      }
      ASSERT_TRUE(down == "0" || (down.front() == '-') == (divisor.front() == '-')) << down;
      ASSERT_TRUE(cut == "0" || (cut.front() == '-') == (dividend.front() == '-')) << cut;
    }
  });
}

class Whole {
 public:
  explicit Whole(const std::string& digits) { mpz_init_set_str(number_, digits.c_str(), 10); }
  ~Whole() { mpz_clear(number_); }
  Whole(const Whole&) = delete;
  Whole& operator=(const Whole&) = delete;

  std::string modulo(const Whole& divisor) const {
    Whole rest("0");
    mpz_tdiv_r(rest.number_, number_, divisor.number_);
    std::string text(mpz_sizeinbase(rest.number_, 10) + 2, '\0');
    text.resize(std::char_traits<char>::length(mpz_get_str(text.data(), 10, rest.number_)));
    return text;
  }

 private:
  mpz_t number_;
};

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
        ASSERT_EQ(Mod(dividend, divisor, true), Whole(dividend).modulo(Whole(divisor)))
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
          *nudge == '-' ? Operate(operation::subtract, divisor, 1, 1e6) : NumberText(nudge);
      ASSERT_EQ(Mod(dividend, divisor, false), expected) << length;
    }
  }
}

TEST(Remainders, AreAnErrorWhereNoProductsCanBeFormed) {
  class No_Libraries final : public Library_Loader {
   public:
    void* symbol(const char*, const char*) override { return nullptr; }
  };
  const auto before = std::exchange(Current_Platform().libraries, std::make_shared<No_Libraries>());
  EXPECT_EQ(Mod("7", "3", false), "#VALUE!");
  EXPECT_EQ(Mod("2", "3", true), "#VALUE!");
  EXPECT_EQ(Mod("0", "3", false), "0");
  Current_Platform().libraries = before;
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
  EXPECT_EQ(Mod("1E+900000000", "7", true), "#VALUE!");
  EXPECT_EQ(IsOdd_Function("1E+900000000").text(), "#NUM!");
}

TEST(Parity, IsThatOfTheLastWholeDigit) {
  In_Each_Locale([] {
    Random_Numbers random(84);
    for (int round = 0; round < 2000; ++round) {
      const std::string number = random.number(50);
      const std::size_t end = std::min(number.find('.'), number.size());
      const bool odd = Mod(number.substr(0, end), "2", true).back() == '1';
      ASSERT_EQ(IsOdd_Function(Localized(number)).boolean(), odd) << number;
      ASSERT_EQ(IsEven_Function(Localized(number)).boolean(), !odd) << number;
    }
  });
}

}  // namespace
}  // namespace quorvex
