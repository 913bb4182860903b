#include "formula/reference.h"

#include <algorithm>
#include <charconv>

namespace quorvex {

namespace {

bool Is_Letter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool Is_Digit(char c) {
  return c >= '0' && c <= '9';
}

struct Cell_Spelling {
  std::string_view letters;
  std::string_view digits;
};

void Skip_Dollar(std::string_view& text) {
  if (text.starts_with('$')) text.remove_prefix(1);
}

std::optional<Cell_Spelling> Spelling_Of(std::string_view text) {
  Skip_Dollar(text);
  const auto letters_end = std::find_if_not(text.begin(), text.end(), Is_Letter);
  const auto letters = static_cast<std::size_t>(letters_end - text.begin());
  if (letters == 0 || letters > 3) return std::nullopt;
  const std::string_view column = text.substr(0, letters);
  text.remove_prefix(letters);
  Skip_Dollar(text);
  if (text.empty() || !std::all_of(text.begin(), text.end(), Is_Digit)) return std::nullopt;
  return Cell_Spelling{column, text};
}

}  // namespace

bool Cell_Area::contains(Cell_Address cell) const {
  return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column &&
         cell.column <= last.column;
}

Cell_Area Area_Between(Cell_Address one, Cell_Address other) {
  return {{std::min(one.row, other.row), std::min(one.column, other.column)},
          {std::max(one.row, other.row), std::max(one.column, other.column)}};
}

std::string Column_Letters(std::uint32_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

std::string Address_Text(Cell_Address cell) {
  return Column_Letters(cell.column) + std::to_string(cell.row);
}

std::string Area_Text(const Cell_Area& area) {
  if (area.first == area.last) return Address_Text(area.first);
  return Address_Text(area.first) + ":" + Address_Text(area.last);
}

bool Looks_Like_Cell(std::string_view text) {
  return Spelling_Of(text).has_value();
}

std::optional<Cell_Address> Read_Address(std::string_view text) {
  const auto spelling = Spelling_Of(text);
  if (!spelling || spelling->digits.front() == '0') return std::nullopt;
  Cell_Address cell{0, 0};
  for (const char letter : spelling->letters) {
    const char capital = letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
    cell.column = cell.column * 26 + static_cast<std::uint32_t>(capital - 'A' + 1);
  }
  const std::string_view digits = spelling->digits;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), cell.row);
  if (read.ec != std::errc() || cell.row > maximum_rows || cell.column > maximum_columns) {
    return std::nullopt;
  }
  return cell;
}

}  // namespace quorvex
