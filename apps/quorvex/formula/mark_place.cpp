#include <algorithm>

#include "formula/formula.h"
#include "formula/utf8.h"
#include "formula/visible.h"
#include "host/utf8.h"

namespace quorvex {

namespace {

constexpr std::size_t window = 72;
constexpr std::string_view cut_mark = "...";

std::size_t Back_By_Characters(std::string_view text, std::size_t position, std::size_t count) {
  while (position > 0 && count > 0) {
    --position;
    if (!Continues_Character(text[position])) --count;
  }
  return position;
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
  position = std::min(position, formula.size());
  while (position > 0 && position < formula.size() && Continues_Character(formula[position])) {
    --position;
  }
  std::size_t start = 0;
  std::size_t end = formula.size();
  if (Bytes_Of_Characters(formula, window) < formula.size()) {
    start = Back_By_Characters(formula, position, window / 2);
    const std::size_t shown = Count_Characters(formula.substr(start, position - start));
    end = position + Bytes_Of_Characters(formula.substr(position), window - shown);
  }
  std::string line = On_One_Line(formula.substr(start, end - start));
  std::size_t caret = Count_Characters(formula.substr(start, position - start));
  if (start > 0) {
    line.insert(0, cut_mark);
    caret += cut_mark.size();
  }
  if (end < formula.size()) line.append(cut_mark);
  return line + "\n" + std::string(caret, ' ') + "^";
}

}  // namespace quorvex
