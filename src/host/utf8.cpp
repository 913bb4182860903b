// Characters of UTF-8 text.
#include "host/utf8.h"

#include <algorithm>

namespace quorvex {

namespace {

constexpr std::size_t longest_character = 4;

unsigned Byte(char c) {
  return static_cast<unsigned char>(c);
}

bool Is_Continuation(char c) {
  return (Byte(c) & 0xC0U) == 0x80U;
}

/// The length that a first byte announces; 0 if no character begins with it.
std::size_t Announced_Bytes(unsigned lead) {
  if (lead < 0x80U) return 1;
  if (lead >= 0xC2U && lead <= 0xDFU) return 2;
  if (lead >= 0xE0U && lead <= 0xEFU) return 3;
  return lead >= 0xF0U && lead <= 0xF4U ? 4 : 0;
}

/// Code points written longer than need be, halves of surrogate pairs, and beyond the last one.
bool Is_Forbidden(char32_t code, std::size_t bytes) {
  constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  return code < least[bytes] || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF;
}

char Tail(char32_t code, unsigned shift) {
  return static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
}

}  // namespace

Character First_Character(std::string_view text) noexcept {
  if (text.empty()) return {};
  const unsigned lead = Byte(text[0]);
  const std::size_t bytes = Announced_Bytes(lead);
  if (bytes == 1) return {lead, 1, true};
  const Character invalid{lead, 1, false};
  if (bytes == 0 || text.size() < bytes) return invalid;
  char32_t code = lead & (0x7FU >> bytes);
  for (std::size_t i = 1; i < bytes; ++i) {
    if (!Is_Continuation(text[i])) return invalid;
    code = (code << 6U) | (Byte(text[i]) & 0x3FU);
  }
  return Is_Forbidden(code, bytes) ? invalid : Character{code, bytes, true};
}

std::size_t Last_Character_Bytes(std::string_view text) noexcept {
  const std::size_t most = std::min(text.size(), longest_character);
  for (std::size_t bytes = 1; bytes <= most; ++bytes) {
    const std::string_view tail = text.substr(text.size() - bytes);
    if (Is_Continuation(tail[0])) continue;
    return First_Character_Bytes(tail) == bytes ? bytes : 1;
  }
  return std::min<std::size_t>(most, 1);
}

std::size_t Count_Characters(std::string_view text) noexcept {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(First_Character_Bytes(text));
  return count;
}

bool Is_Valid_Utf8(std::string_view text) noexcept {
  while (!text.empty()) {
    const Character character = First_Character(text);
    if (!character.valid) return false;
    text.remove_prefix(character.bytes);
  }
  return true;
}

void Append_Character(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0U | (code >> 6U));
    text += Tail(code, 0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0U | (code >> 12U));
    text += {Tail(code, 6), Tail(code, 0)};
  } else {
    text += static_cast<char>(0xF0U | (code >> 18U));
    text += {Tail(code, 12), Tail(code, 6), Tail(code, 0)};
  }
}

}  // namespace quorvex
