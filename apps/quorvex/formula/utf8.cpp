#include "formula/utf8.h"

#include "host/utf8.h"

namespace quorvex {

std::optional<std::size_t> First_Bad_Byte(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (static_cast<unsigned char>(text[at]) < 0x80) {
      ++at;
      continue;
    }
    const Character character = First_Character(text.substr(at));
    if (!character.valid) return at;
    at += character.bytes;
  }
  return std::nullopt;
}

std::size_t Bytes_Of_Characters(std::string_view text, std::size_t characters) {
  std::size_t at = 0;
  for (; characters > 0 && at < text.size(); --characters)
    at += First_Character_Bytes(text.substr(at));
  return at;
}

}  // namespace quorvex
