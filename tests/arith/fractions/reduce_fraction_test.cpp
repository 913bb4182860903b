// Reduced fractions against an independent greatest common divisor.
#include "arith/fractions/reduce_fraction.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "arith/fractions/exact_divisor.h"
#include "arith/fractions/whole_divisor.h"
#include "support/failures.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

class Integer {
 public:
  explicit Integer(const std::string& text = "0") { mpz_init_set_str(value, text.c_str(), 10); }
  Integer(const Integer&) = delete;
  Integer& operator=(const Integer&) = delete;
  ~Integer() { mpz_clear(value); }

  std::string text() const {
    std::string digits(mpz_sizeinbase(value, 10) + 2, '\0');
    mpz_get_str(digits.data(), 10, value);
    return digits.substr(0, digits.find('\0'));
  }

  mpz_t value;
};

std::string Product(const std::string& a, const std::string& b) {
  const Integer first(a);
  const Integer second(b);
  Integer product;
  mpz_mul(product.value, first.value, second.value);
  return product.text();
}

// A whole number that is not 0.
std::string Random_Whole(Random_Numbers& random, std::size_t most) {
  const std::string sign = random.one_in(3) ? "-" : "";
  return sign + std::to_string(1 + random.below(9)) + random.digits(random.below(most));
}

TEST(ReducedFractions, HaveNothingInCommonAtAnyLength) {
  Random_Numbers random(81);
  const HostValue limit = 2000;
  for (int round = 0; round < 400; ++round) {
    const std::size_t most = random.one_in(4) ? 300 : 25;
    const std::string common = Random_Whole(random, most);
    const std::string N = Product(Random_Whole(random, most), common);
    const std::string D = Product(Random_Whole(random, most), common);
    const type_Fraction fraction = Reduce_Fraction(N, D, {.maxSD = limit});
    const Integer n(N);
    const Integer d(D);
    Integer divisor;
    mpz_gcd(divisor.value, n.value, d.value);
    const bool stays = N == "1" || N == "-1" || D == "1" || D == "-1" ||
                       (mpz_cmpabs(n.value, d.value) == 0 && std::max(N.size(), D.size()) > 9);
    ASSERT_EQ(fraction.Reduced_By, stays ? "1" : divisor.text()) << N << '/' << D;
    ASSERT_EQ(Product(fraction.Numerator, fraction.Reduced_By), N) << N << '/' << D;
    ASSERT_EQ(Product(fraction.divisor, fraction.Reduced_By), D) << N << '/' << D;
  }
}

// Remainders longer than the limit are rounded to it, so that what comes out need not divide:
// 1235, 1232, 30, 20, 10 are the first digits in the first case.
TEST(ReducedFractions, AreRoundedAtTheLimit) {
  const HostValue limit = 3;
  const struct {
    const char* numerator;
    const char* divisor;
    const char* expected;
  } cases[] = {
      {"98765432109876543210", "12345678901234567890", "10000000000000000"},
      {"1000000000000000000", "999999999999999999", "1000000000000000000"},
      {"123456789012", "1234567890120", "123500000000"},
  };
  for (const auto& c : cases) {
    const type_Fraction fraction = Reduce_Fraction(c.numerator, c.divisor, {.maxSD = limit});
    EXPECT_EQ(fraction.Reduced_By, c.expected) << c.numerator;
  }
}

TEST(CommonDivisor, IsTheSameByTextAndInWords) {
  Random_Numbers random(82);
  for (int round = 0; round < 600; ++round) {
    const std::size_t most = random.one_in(4) ? 200 : 30;
    std::string A = Product(Random_Whole(random, most), Random_Whole(random, most));
    std::string B = random.one_in(8) ? A : Product(Random_Whole(random, most), A);
    if (random.one_in(2)) B = Random_Whole(random, most);
    if (random.one_in(3)) A += std::string(random.below(60), '0');
    if (random.one_in(3)) B += std::string(random.below(60), '0');
    const auto limit = static_cast<double>(1 + random.below(2 * most));
    const Common_Divisor quick = Divisor_Of(A, B, limit);
    const Common_Divisor by_text = Divisor_Of(A, B, limit, Remainders::by_text);
    ASSERT_EQ(quick.are_equal, by_text.are_equal) << A << ' ' << B << " at " << limit;
    ASSERT_EQ(quick.divisor, by_text.divisor) << A << ' ' << B << " at " << limit;
  }
}

// Quotients of many words, and of one bit.
TEST(CommonDivisor, IsExactInWords) {
  Random_Numbers random(83);
  for (int round = 0; round < 1500; ++round) {
    const auto whole = [&] {
      return std::to_string(1 + random.below(9)) + random.digits(random.length(400));
    };
    std::string A = whole();
    std::string B = random.one_in(3) ? random.neighbour(A) : whole();
    if (B.front() == '-') B.erase(0, 1);
    B.erase(0, std::min(B.find_first_not_of('0'), B.size() - 1));
    if (random.one_in(2)) {
      const std::string common = whole();
      A = Product(A, common);
      B = Product(B, common);
    }
    const Integer a(A);
    const Integer b(B);
    Integer divisor;
    mpz_gcd(divisor.value, a.value, b.value);
    ASSERT_EQ(Exact_Divisor(A, B), divisor.text()) << A << ' ' << B;
  }
}

TEST(ReducedFractions, CanBeBrokenOff) {
  const Interruption_Guard guard;
  EXPECT_EQ(Failure_Of([] { Reduce_Fraction("12345678901", "9876543210", {}); }),
            Failure_Number::interrupted);
}

}  // namespace
}  // namespace quorvex
