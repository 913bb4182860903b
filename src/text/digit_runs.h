// Runs of digits in text: how far they reach, many characters at a time.
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvex {

/// The length of the run of digits (0 to 9) at the start of a text.
std::size_t Count_Digits(std::string_view text);

/// The number of "0" characters at the start, or at the end, of a text.
std::size_t Count_Leading_Zeros(std::string_view text);
std::size_t Count_Trailing_Zeros(std::string_view text);

/// True if any character is no digit; false for empty text.
bool Has_Non_Digit(std::string_view text);

/// True for digits of which the first is no zero.
inline bool Are_Significant(std::string_view text) {
  return !text.empty() && text.front() != '0' && !Has_Non_Digit(text);
}

}  // namespace quorvex
