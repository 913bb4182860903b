// Digit kernels against digits added one by one, wherever the spans lie in memory.
#include "arith/digits/digit_spans.h"

#include <gtest/gtest.h>

#include <string>

#include "host/platform.h"
#include "support/random_numbers.h"
#include "support/surroundings.h"

namespace quorvex {
namespace {

struct Outcome {
  std::string digits;
  bool carry;
};

// `sign` 1 adds and -1 subtracts.
Outcome Digit_By_Digit(const std::string& a, const std::string& b, int sign, bool carry) {
  Outcome outcome{a, carry};
  for (std::size_t i = a.size(); i-- > 0;) {
    const int digit = (a[i] - '0') + sign * ((b[i] - '0') + static_cast<int>(outcome.carry));
    outcome.carry = digit < 0 || digit > 9;
    outcome.digits[i] = static_cast<char>('0' + (digit + 10) % 10);
  }
  return outcome;
}

// A span at a phase of a word, between guard bytes that no kernel may touch.
class Guarded {
 public:
  Guarded(std::size_t phase, const std::string& digits)
      : size_(digits.size()), begin_(guard + phase), bytes_(begin_ + size_ + guard, '#') {
    bytes_.replace(begin_, size_, digits);
  }
  char* data() { return bytes_.data() + begin_; }
  std::string digits() const { return bytes_.substr(begin_, size_); }
  bool is_sound() const {
    return bytes_.find_first_not_of('#') >= begin_ &&
           bytes_.find_last_not_of('#') + 1 <= begin_ + size_;
  }

 private:
  static constexpr std::size_t guard = 16;
  std::size_t size_;
  std::size_t begin_;
  std::string bytes_;
};

using Kernel = bool (*)(char* out, const char* a, const char* b, std::size_t length, bool carry);

struct Named_Kernel {
  const char* name;
  Kernel run;
  int sign;
  bool takes_a, takes_b;
};

const Named_Kernel kernels[] = {
    {"Add", digit_spans::Add, 1, true, true},
    {"Subtract", digit_spans::Subtract, -1, true, true},
    {"Add_Carry",
     [](char* out, const char* a, const char*, std::size_t length, bool carry) {
       return digit_spans::Add_Carry(out, a, length, carry);
     },
     1, true, false},
    {"Subtract_Borrow",
     [](char* out, const char* a, const char*, std::size_t length, bool borrow) {
       return digit_spans::Subtract_Borrow(out, a, length, borrow);
     },
     -1, true, false},
    {"Complement",
     [](char* out, const char*, const char* b, std::size_t length, bool) {
       return digit_spans::Complement(out, b, length);
     },
     -1, false, true},
};

void Check(const Named_Kernel& kernel, Random_Numbers& random, std::size_t length) {
  const std::string zeros(length, '0');
  const std::string a = kernel.takes_a ? random.digits(length) : zeros;
  const std::string b = kernel.takes_b ? random.digits(length) : zeros;
  const bool carry = kernel.takes_a && random.one_in(2);
  const Outcome expected = Digit_By_Digit(a, b, kernel.sign, carry);
  Guarded first(random.below(8), a);
  Guarded second(random.below(8), b);
  Guarded out(random.below(8), zeros);
  const bool carried = kernel.run(out.data(), first.data(), second.data(), length, carry);
  ASSERT_EQ(out.digits(), expected.digits) << kernel.name << ' ' << a << ' ' << b << ' ' << carry;
  ASSERT_EQ(carried, expected.carry) << kernel.name << ' ' << a << ' ' << b << ' ' << carry;
  ASSERT_EQ(first.digits() + second.digits(), a + b);
  ASSERT_TRUE(out.is_sound() && first.is_sound() && second.is_sound()) << kernel.name;

  // the output may be an input
  Guarded& in_place = kernel.takes_a ? first : second;
  kernel.run(in_place.data(), first.data(), second.data(), length, carry);
  ASSERT_EQ(in_place.digits(), expected.digits) << kernel.name << " in place " << a << ' ' << b;
  ASSERT_TRUE(in_place.is_sound());
}

TEST(DigitSpans, DoAsDigitByDigitAtEveryPhase) {
  constexpr unsigned seed = 31;
  Random_Numbers random(seed);
  for (const Named_Kernel& kernel : kernels) {
    for (std::size_t length = 0; length < 150; ++length) {
      for (int round = 0; round < 60; ++round) {
        Check(kernel, random, length);
        if (HasFatalFailure()) FAIL() << "seed " << seed;
      }
    }
  }
}

TEST(DigitSpans, CarryAcrossTheWholeLengthAndYieldOnTheWay) {
  for (const std::size_t length : {digits_between_yields - 1, digits_between_yields,
                                   digits_between_yields + 1, 2 * digits_between_yields + 5}) {
    const std::string zeros(length, '0');
    const std::string nines(length, '9');
    const std::string one = std::string(length - 1, '0') + "1";
    std::string out(length, '#');
    const std::size_t least = length > digits_between_yields + 1 ? 1 : 0;
    const auto expect = [&](const std::string& digits, const auto& kernel) {
      EXPECT_GE(Yields_Of([&] { EXPECT_TRUE(kernel()); }), least) << length;
      EXPECT_TRUE(out == digits) << length;
    };
    char* const to = out.data();
    expect(zeros, [&] { return digit_spans::Add(to, nines.data(), one.data(), length, false); });
    expect(nines,
           [&] { return digit_spans::Subtract(to, zeros.data(), one.data(), length, false); });
    expect(zeros, [&] { return digit_spans::Add_Carry(to, nines.data(), length, true); });
    expect(nines, [&] { return digit_spans::Subtract_Borrow(to, zeros.data(), length, true); });
  }
}

}  // namespace
}  // namespace quorvex
