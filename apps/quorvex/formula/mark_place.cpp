#include <algorithm>

#include "formula/formula.h"
#include "formula/utf8.h"
#include "formula/visible.h"
#include "host/utf8.h"

namespace quorvex {

namespace {

constexpr std::size_t window = 72;
constexpr std::string_view cut_mark = "...";

// Where the character begins that holds the byte.
std::size_t Start_Of_Character(std::string_view text, std::size_t position) {
  for (std::size_t back = 1; back <= std::min<std::size_t>(position, 3); ++back) {
    if (First_Character_Bytes(text.substr(position - back)) > back) return position - back;
  }
  return position;
}

std::string_view Last_Characters(std::string_view text, std::size_t count) {
  const std::size_t all = Count_Characters(text);
  text.remove_prefix(Bytes_Of_Characters(text, all - std::min(all, count)));
  return text;
}

// A line break, a tab or what changes the direction would take the caret away from its place.
std::string On_One_Line(std::string_view text) {
  std::string line;
  while (!text.empty()) {
    const std::string_view character = text.substr(0, First_Character_Bytes(text));
    if (character.size() == 1 && (character[0] == '\n' || character[0] == '\t')) {
      line += ' ';
    } else {
      line += Visible(character) == character ? character : "\uFFFD";
    }
    text.remove_prefix(character.size());
  }
  return line;
}

}  // namespace

std::string Mark_Place(std::string_view formula, std::size_t position) {
  position = Start_Of_Character(formula, std::min(position, formula.size()));
  // From here on every byte belongs to a character.
  const std::string all_before = On_One_Line(formula.substr(0, position));
  const std::string all_behind = On_One_Line(formula.substr(position));
  std::string_view before = all_before;
  std::string_view behind = all_behind;
  if (Count_Characters(before) + Count_Characters(behind) > window) {
    before = Last_Characters(before, window / 2);
    behind = behind.substr(0, Bytes_Of_Characters(behind, window - Count_Characters(before)));
  }
  std::string line;
  if (before.size() < all_before.size()) line += cut_mark;
  line += before;
  const std::size_t caret = Count_Characters(line);
  line += behind;
  if (behind.size() < all_behind.size()) line += cut_mark;
  return line + "\n" + std::string(caret, ' ') + "^";
}

}  // namespace quorvex
