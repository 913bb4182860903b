// Runs of digits, wherever they lie in memory.
#include "text/digit_runs.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex {
namespace {

constexpr std::size_t longest = 75;
constexpr std::size_t phases = 8;

// `length` characters that begin `phase` bytes behind a border of words, with digits on both sides
// that must not be counted.
struct Misaligned {
  Misaligned(std::size_t phase, std::size_t length, char fill)
      : buffer(phase + length + 16, fill), begin(phase), size(length) {}
  std::string_view view() const { return std::string_view(buffer).substr(begin, size); }
  void set(std::size_t place, char character) { buffer[begin + place] = character; }

  std::string buffer;
  std::size_t begin;
  std::size_t size;
};

TEST(DigitRuns, EndAtTheFirstCharacterThatIsNoDigit) {
  for (std::size_t phase = 0; phase < phases; ++phase) {
    for (std::size_t length = 0; length <= longest; ++length) {
      Misaligned digits(phase, length, '9');
      ASSERT_EQ(Count_Digits(digits.view()), length);
      ASSERT_FALSE(Has_Non_Digit(digits.view()));
      for (std::size_t place = 0; place < length; ++place) {
        digits.set(place, place % 2 == 0 ? '/' : ':');  // the neighbours of 0 and 9
        ASSERT_EQ(Count_Digits(digits.view()), place) << phase << ' ' << length;
        ASSERT_TRUE(Has_Non_Digit(digits.view())) << phase << ' ' << length;
        digits.set(place, '0');
      }
    }
  }
}

TEST(DigitRuns, KnowEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool is_digit = byte >= '0' && byte <= '9';
    for (std::size_t place = 0; place < 43; ++place) {
      Misaligned digits(place % phases, 43, place % 3 == 0 ? '0' : '9');
      digits.set(place, static_cast<char>(byte));
      ASSERT_EQ(Count_Digits(digits.view()), is_digit ? 43 : place) << byte;
      ASSERT_EQ(Has_Non_Digit(digits.view()), !is_digit) << byte;
    }
  }
}

TEST(DigitRuns, CountZerosFromBothEnds) {
  for (std::size_t phase = 0; phase < phases; ++phase) {
    for (std::size_t length = 0; length <= longest; ++length) {
      Misaligned zeros(phase, length, '0');
      ASSERT_EQ(Count_Leading_Zeros(zeros.view()), length);
      ASSERT_EQ(Count_Trailing_Zeros(zeros.view()), length);
      for (std::size_t place = 0; place < length; ++place) {
        for (const char other : {'1', '/', '8', '\xB0', '\0'}) {
          zeros.set(place, other);
          ASSERT_EQ(Count_Leading_Zeros(zeros.view()), place) << phase << ' ' << length;
          ASSERT_EQ(Count_Trailing_Zeros(zeros.view()), length - place - 1);
        }
        zeros.set(place, '0');
      }
    }
  }
}

}  // namespace
}  // namespace quorvex
