// Texts of users as messages show them.
#include "host/shown_text.h"

#include "host/utf8.h"

namespace quorvex {

std::string Shown_Text(std::string_view text) {
  constexpr std::size_t most_characters = 40;
  std::string shown = "\"";
  for (std::size_t count = 0; !text.empty(); ++count) {
    if (count == most_characters) {
      shown += "\u2026";
      break;
    }
    const Character character = First_Character(text);
    const bool shows = character.valid && character.code >= ' ' && character.code != 0x7F;
    shown += shows ? text.substr(0, character.bytes) : "?";
    text.remove_prefix(character.bytes);
  }
  return shown += '"';
}

}  // namespace quorvex
