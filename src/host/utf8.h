// Characters of UTF-8 text. A byte that belongs to no valid character counts as one of its own, so
// that no text is ever unreadable, and nothing is read outside a text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/export.h"

namespace quorvex {

/// Some editors put it before the first line of a file; it is no part of the text.
inline constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

/// A character, its code point and its length in bytes. For an invalid byte, `valid` is false and
/// `bytes` is 1; for empty text, `bytes` is 0.
struct Character {
  char32_t code = 0;
  std::size_t bytes = 0;
  bool valid = false;
};

/// The character that the text begins with.
QUORVEX_API Character First_Character(std::string_view text) noexcept;

/// The bytes of the first character, 0 for empty text.
inline std::size_t First_Character_Bytes(std::string_view text) noexcept {
  if (text.empty()) return 0;
  return static_cast<unsigned char>(text.front()) < 0x80 ? 1 : First_Character(text).bytes;
}

/// The bytes of the last character, 0 for empty text.
QUORVEX_API std::size_t Last_Character_Bytes(std::string_view text) noexcept;

/// How many characters the text has.
QUORVEX_API std::size_t Count_Characters(std::string_view text) noexcept;

/// Whether every byte belongs to a valid character.
QUORVEX_API bool Is_Valid_Utf8(std::string_view text) noexcept;

/// Adds a character, which must be a valid code point.
QUORVEX_API void Append_Character(std::string& text, char32_t code);

}  // namespace quorvex
