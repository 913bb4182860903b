#include "numbers/long_characters.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "host/utf8.h"

namespace quorvex {
namespace {

constexpr char stand_in = '\x1a';

bool Has_Any(std::string_view text) {
  unsigned char bits = 0;
  for (const char character : text) bits |= static_cast<unsigned char>(character);
  return bits >= 0x80;
}

}  // namespace

Long_Characters::Long_Characters(std::string& text) {
  if (!Has_Any(text)) return;
  std::string short_text;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view character = rest.substr(0, First_Character_Bytes(rest));
    rest.remove_prefix(character.size());
    const bool stays = character.size() == 1 && character.front() != stand_in;
    short_text += stays ? character.front() : stand_in;
    if (!stays) taken_ += character;
  }
  text = std::move(short_text);
}

void Long_Characters::restore(std::string& text) const {
  if (taken_.empty()) return;
  std::string restored;
  std::string_view rest = taken_;
  for (const char character : text) {
    if (character != stand_in) {
      restored += character;
      continue;
    }
    const std::size_t bytes = First_Character_Bytes(rest);
    restored += rest.substr(0, bytes);
    rest.remove_prefix(bytes);
  }
  text = std::move(restored);
}

}  // namespace quorvex
