#include "formula/visible.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

#include "host/utf8.h"

namespace quorvex {
namespace {

struct Span {
  char32_t first;
  char32_t last;
};

// Beyond ASCII: C1 controls, the soft hyphen, marks and overrides of direction, separators of
// lines, what has no width, the byte order mark, and tags.
constexpr std::array hidden{
    Span{0x80, 0x9F},     Span{0xAD, 0xAD},       Span{0x61C, 0x61C},   Span{0x180E, 0x180E},
    Span{0x200B, 0x200F}, Span{0x2028, 0x202E},   Span{0x2060, 0x206F}, Span{0xFEFF, 0xFEFF},
    Span{0xFFF9, 0xFFFB}, Span{0xE0000, 0xE0FFF},
};

bool Is_Hidden(char32_t code) {
  return std::any_of(hidden.begin(), hidden.end(),
                     [&](const Span& span) { return code >= span.first && code <= span.last; });
}

bool Is_Plain(char byte) {
  return byte >= ' ' && byte <= '~';
}

std::string Number_Sign(std::string_view prefix, std::uint32_t number, std::size_t width) {
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
  std::string text(digits.data(), end.ptr);
  for (char& digit : text) {
    if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
  }
  text.insert(0, width > text.size() ? width - text.size() : 0, '0');
  return "<" + std::string(prefix) + text + ">";
}

void Append_Visible(std::string& shown, std::string_view bytes, const Character& character) {
  if (!character.valid) {
    shown += Number_Sign("0x", static_cast<unsigned char>(bytes.front()), 2);
  } else if (character.code < 0x20) {
    Append_Character(shown, U'\u2400' + character.code);
  } else if (character.code == 0x7F) {
    Append_Character(shown, U'\u2421');
  } else if (Is_Hidden(character.code)) {
    shown += Number_Sign("U+", character.code, 4);
  } else {
    shown += bytes;
  }
}

}  // namespace

std::string Visible(std::string_view text, std::string_view kept) {
  if (std::all_of(text.begin(), text.end(), Is_Plain)) return std::string(text);
  std::string shown;
  shown.reserve(text.size() + 16);
  while (!text.empty()) {
    const Character character = First_Character(text);
    const std::string_view bytes = text.substr(0, character.bytes);
    if (kept.find(text.front()) != std::string_view::npos) {
      shown += bytes;
    } else {
      Append_Visible(shown, bytes, character);
    }
    text.remove_prefix(character.bytes);
  }
  return shown;
}

std::string For_Output(std::string text, bool is_terminal) {
  return is_terminal ? Visible(text, "\n\t") : std::move(text);
}

}  // namespace quorvex
