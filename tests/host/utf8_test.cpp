// Characters of UTF-8 text.
#include "host/utf8.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace quorvex {
namespace {

TEST(Utf8, MeasuresCharactersAndCountsInvalidBytesAsOneEach) {
  const struct {
    std::string_view text;
    std::size_t first;
    std::size_t last;
    std::size_t count;
  } cases[] = {
      {"", 0, 0, 0},
      {"a", 1, 1, 1},
      {"\u202F1\u2019", 3, 3, 3},
      {"\u00E9\U0001F600", 2, 4, 2},
      {"\U0010FFFF", 4, 4, 1},
      {"\x80\x80\x80\x80\x80", 1, 1, 5},  // continuations of nothing
      {"\xE2\x80", 1, 1, 2},              // cut off
      {"\xE2\x80z", 1, 1, 3},             // broken off
      {"\xC0\x80", 1, 1, 2},              // longer than need be
      {"\xE0\x9F\xBF", 1, 1, 3},
      {"\xF0\x8F\xBF\xBF", 1, 1, 4},
      {"\xED\xA0\x80", 1, 1, 3},      // half of a surrogate pair
      {"\xF4\x90\x80\x80", 1, 1, 4},  // beyond the last character
      {"\xF5\x80\x80\x80", 1, 1, 4},
      {"\u00E9\x80", 2, 1, 2},  // one continuation too many
      {"\xE2\u00E9", 1, 2, 2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(First_Character_Bytes(c.text), c.first) << testing::PrintToString(c.text);
    EXPECT_EQ(Last_Character_Bytes(c.text), c.last) << testing::PrintToString(c.text);
    EXPECT_EQ(Count_Characters(c.text), c.count) << testing::PrintToString(c.text);
  }
}

TEST(Utf8, WritesEveryCharacterAsItReadsIt) {
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (code == 0xD800) code = 0xE000;
    std::string text;
    Append_Character(text, code);
    const Character read = First_Character(text);
    ASSERT_TRUE(read.valid && read.code == code && read.bytes == text.size()) << text;
    ASSERT_EQ(Last_Character_Bytes(text), text.size());
  }
}

TEST(Utf8, WalksAnyBytesAlikeFromBothEndsAndStaysInside) {
  std::mt19937 random(8);
  const unsigned char leads[] = {0x41, 0x80, 0xBF, 0xC2, 0xE2, 0xED, 0xF0, 0xF4, 0xFF};
  for (int round = 0; round < 20000; ++round) {
    // Memory of its very size, so that the sanitizer sees a byte too many.
    const std::size_t size = random() % 12;
    const auto bytes = std::make_unique<char[]>(size);
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(leads[random() % 9]);
    std::string_view text(bytes.get(), size);
    const std::size_t count = Count_Characters(text);
    std::size_t backwards = 0;
    for (; !text.empty(); ++backwards) text.remove_suffix(Last_Character_Bytes(text));
    ASSERT_EQ(backwards, count);
  }
}

}  // namespace
}  // namespace quorvex
