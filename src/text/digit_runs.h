// Runs of digits in text: how far they reach, many characters at a time.
#pragma once

#include <cstddef>
#include <string_view>

#include "text/digit_words.h"

namespace quorvex {

/// `Count_Digits` of a text of any length.
std::size_t Count_Many_Digits(std::string_view text);

/// The length of the run of digits (0 to 9) at the start of a text.
inline std::size_t Count_Digits(std::string_view text) {
  namespace words = digit_words;
  constexpr std::size_t few = 64;
  const char* const data = text.data();
  const std::size_t length = text.size();
  if (length > few) return Count_Many_Digits(text);
  if (length < words::size) {
    return length == 0 ? 0 : words::Leading_Digits(words::Load_Few(data, length));
  }
  for (std::size_t place = 0; place + words::size <= length; place += words::size) {
    const std::size_t count = words::Leading_Digits(words::Load(data + place));
    if (count < words::size) return place + count;
  }
  // What is left lies within the last word, whose other characters are digits by now.
  return length - words::size + words::Leading_Digits(words::Load(data + length - words::size));
}

/// The number of "0" characters at the start, or at the end, of a text.
std::size_t Count_Leading_Zeros(std::string_view text);
std::size_t Count_Trailing_Zeros(std::string_view text);

/// True if any character is no digit; false for empty text.
inline bool Has_Non_Digit(std::string_view text) {
  return Count_Digits(text) != text.size();
}

/// True for digits of which the first is no zero.
inline bool Are_Significant(std::string_view text) {
  return !text.empty() && text.front() != '0' && !Has_Non_Digit(text);
}

}  // namespace quorvex
