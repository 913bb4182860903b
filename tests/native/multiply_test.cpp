// Products of all sizes by all kinds of instructions, against products formed independently.
#include "native/multiply.h"

#include <gtest/gtest.h>

#include <string>

#if !defined(_WIN32)
#include <sys/resource.h>
#include <unistd.h>
#endif

#include "native/generic/kernels.h"
#include "products.h"
#include "support/repeated.h"
#include "support/whole_number.h"

namespace quorvex::native {
namespace {

std::string Shortened(const std::string& text) {
  return text.size() <= 120 ? text
                            : text.substr(0, 100) + "... (" + std::to_string(text.size()) + ")";
}

// Compares without printing a million digits when it fails.
void Expect_Product(const std::string& a, const std::string& b, const std::string& expected) {
  for (const Instructions kind : Kinds_Here()) {
    const std::string product = Product_Of(a, b, kind);
    EXPECT_TRUE(product == expected) << "kind " << static_cast<int>(kind) << ": " << Shortened(a)
                                     << " * " << Shortened(b) << " = " << Shortened(product);
  }
}

// By hand for short operands, which proves the library that serves for long ones as well.
TEST(Multiply_Texts, Forms_All_Short_Products) {
  for (std::size_t n = 1; n <= 60; ++n) {
    for (std::size_t m = 1; m <= n; ++m) {
      const auto seed = static_cast<unsigned>(100 * n + m);
      const std::string a = Hard_Digits(n, seed % 7, seed);
      const std::string b = Hard_Digits(m, seed % 5, seed + 1);
      const std::string expected = Product_By_Hand(a, b);
      ASSERT_EQ(expected, Product(a, b));
      Expect_Product(a, b, expected);
      Expect_Product(b, a, expected);
    }
  }
}

TEST(Multiply_Texts, Bears_The_Hardest_Digits_At_All_Lengths) {
  for (std::size_t n = 1; n < 12'000; n += 1 + n / 16) {
    for (unsigned pattern = 0; pattern < digit_patterns * digit_patterns; ++pattern) {
      const std::size_t m = n - (pattern % 3 == 0 ? n / 5 : 0);
      const std::string a = Hard_Digits(n, pattern, 3);
      const std::string b = Hard_Digits(m, pattern / digit_patterns, 4);
      Expect_Product(a, b, Product(a, b));
    }
  }
}

// Where one method gives way to the next, and where their blocks are just filled.
TEST(Multiply_Texts, Agrees_Between_Methods) {
  for (const Instructions kind : Kinds_Here()) {
    const std::size_t from = Kernels_Of(kind).transform_from;
    const std::size_t square_from = Kernels_Of(kind).square_from;
    for (const std::size_t n : {from - 1, square_from - 1, square_from}) {
      const std::string a = Hard_Digits(n, static_cast<unsigned>(n), 3);
      EXPECT_TRUE(Product_Of(a, a, kind) == Product(a, a)) << "kind " << static_cast<int>(kind);
    }
    for (const std::size_t middle :
         {16U, 18U, 56U, 112U, 18U * 32U, 18U * 64U, 18U * 128U, 14U * 70U}) {
      for (const std::size_t n : {middle - 1, middle, middle + 1, from - 1, from, from + 1}) {
        const auto pattern = static_cast<unsigned>(n + middle);
        // As long as the mean of both stays where it is, and as the shorter one at half of it.
        for (const std::size_t m : {n, n + n / 9, 40 * n}) {
          const std::string a = Hard_Digits(m, pattern, 1);
          const std::string b = Hard_Digits(m == 40 * n ? n / 2 + 6 : n, pattern / 8, 2);
          EXPECT_TRUE(Product_Of(a, b, kind) == Product(a, b))
              << "kind " << static_cast<int>(kind) << ": " << m << " by " << b.size() << " digits";
        }
      }
    }
  }
}

// Halves of a base of seven digits, of one sign or in turns, are the largest points that short
// products in doubles add up.
TEST(Multiply_Texts, Bears_The_Largest_Points) {
  for (const std::string part : {"5000000", "4999999", "50000005000001", "50000004999999"}) {
    for (const std::size_t n : {14U, 350U, 700U, 999U, 1260U}) {
      const std::string a = Repeated(part, n / part.size() + 2);
      for (std::size_t cut = 0; cut < 14; ++cut) {
        const std::string text = a.substr(0, a.size() - cut);
        Expect_Product(text, text, Product(text, text));
        const std::string longer = Repeated(text, 30);
        Expect_Product(longer, text, Product(longer, text));
      }
    }
  }
}

TEST(Multiply_Texts, Squares) {
  for (std::size_t n = 1; n < 60'000; n += 1 + n / 8) {
    const std::string a = Hard_Digits(n, static_cast<unsigned>(n), 5);
    const std::string expected = Product(a, a);
    Expect_Product(a, a, expected);
    Expect_Product(a, std::string(a), expected);
  }
}

TEST(Multiply_Texts, Cuts_Unbalanced_Operands) {
  for (const std::size_t n : {700U, 5000U, 20'000U, 100'000U, 400'000U}) {
    for (const std::size_t m : {1U, 17U, 18U, 19U, 100U, 333U, 1000U, 2500U, 9000U, 33'000U}) {
      if (m > n) continue;
      const std::string a = Hard_Digits(n, static_cast<unsigned>(m), 6);
      const std::string b = Hard_Digits(m, static_cast<unsigned>(n / 100), 7);
      Expect_Product(a, b, Product(a, b));
    }
  }
}

TEST(Multiply_Texts, Forms_Long_Products) {
  for (const std::size_t n : {50'000U, 65'536U, 200'001U, 1'000'000U}) {
    for (const unsigned pattern : {0U, 1U, 5U}) {
      const std::string a = Hard_Digits(n, pattern, 8);
      const std::string b = Hard_Digits(n - n / 7 * (pattern % 2), pattern, 9);
      Expect_Product(a, b, Product(a, b));
    }
  }
}

// (10^n - 1)(10^m - 1), n not below m: the largest coefficients that so many digits can give.
std::string Product_Of_Nines(std::size_t n, std::size_t m) {
  return std::string(m - 1, '9') + '8' + std::string(n - m, '9') + std::string(m - 1, '0') + '1';
}

// Past the tables of roots, and past what points of twelve digits can hold.
TEST(Multiply_Texts, Forms_The_Longest_Products) {
  const std::size_t lengths[][2] = {{1'700'000, 1'700'001}, {3'100'000, 3'000'000}};
  for (const auto& [n, m] : lengths) {
    const std::string a = Hard_Digits(n, 0, 11);
    const std::string b = Hard_Digits(m, 5, 12);
    Expect_Product(a, b, Product(a, b));
  }
  const std::size_t n = 15'300'000;
  const std::size_t m = 15'200'000;
  const std::string product =
      Product_Of(std::string(n, '9'), std::string(m, '9'), Best_Instructions());
  EXPECT_TRUE(product == Product_Of_Nines(n, m)) << Shortened(product);
}

// The sanitizers' shadow needs more than any limit, and Windows limits processes from outside.
#if !defined(QUORVEX_SANITIZED) && !defined(_WIN32)
// In a process of its own, which may have no more memory than it has.
TEST(Multiply_Texts, Leaves_The_Buffer_When_Memory_Runs_Out) {
  const auto multiply = [] {
    const std::string a(40'000'000, '7');
    std::string out(2 * a.size(), ' ');
    const rlimit limit{1U << 28U, 1U << 28U};
    setrlimit(RLIMIT_AS, &limit);
    const bool is_refused = Multiply_Texts(a, a, out.data(), out.size()) == 0;
    _exit(is_refused && out.find_first_not_of(' ') == std::string::npos ? 0 : 1);
  };
  EXPECT_EXIT(multiply(), testing::ExitedWithCode(0), "");
}
#endif

TEST(Multiply_Texts, Drops_Leading_Zeros) {
  const std::string zeros(500, '0');
  const struct {
    std::string a, b, expected;
  } cases[] = {{"0", "0", "0"},           {"00", "5", "0"},    {"0", zeros + "7", "0"},
               {zeros, zeros, "0"},       {"0002", "03", "6"}, {zeros + "99", "99", "9801"},
               {zeros + "12", zeros, "0"}};
  for (const auto& [a, b, expected] : cases) Expect_Product(a, b, expected);
}

// Every place of a long operand is looked at, whatever reads it.
TEST(Multiply_Texts, Refuses_Anything_But_Digits) {
  for (const std::size_t n : {1U, 5U, 18U, 19U, 60U, 130U, 1000U, 4000U, 9000U}) {
    const std::string good = Hard_Digits(n, 0, 10);
    for (std::size_t at = 0; at < n; at += 1 + n / 150) {
      for (const char wrong : {'/', ':', ' ', '-', '\xB5', 'a', '\0'}) {
        std::string bad = good;
        bad[at] = wrong;
        Expect_Product(good, bad, "");
        Expect_Product(bad, "00", "");
        Expect_Product(bad, bad, "");
      }
    }
  }
  Expect_Product("", "5", "");
}

TEST(Multiply_Texts, Keeps_Within_Its_Room) {
  char out[] = "    ";
  EXPECT_EQ(Multiply_Texts("99", "99", out, 3), 0U);
  EXPECT_STREQ(out, "    ");
  EXPECT_EQ(Multiply_Texts("99", "99", out, 4), 4U);
  EXPECT_STREQ(out, "9801");
}

}  // namespace
}  // namespace quorvex::native
