#include "sheet/grid.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <string_view>

#include "formula/utf8.h"
#include "host/platform.h"
#include "host/utf8.h"

namespace quorvex {

namespace {

using Cell_Place = std::map<Cell_Address, Cell>::const_iterator;

constexpr std::string_view column_gap = "  ";

// Control characters would break the lines, or command the terminal; their pictures don't.
std::string Without_Controls(const std::string& value) {
  std::string shown;
  shown.reserve(value.size());
  for (const char c : value) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) {
      Append_Character(shown, byte == 0x7F ? U'\u2421' : U'\u2400' + byte);
    } else {
      shown += c;
    }
  }
  return shown;
}

std::string Cut(std::string value, std::size_t limit) {
  if (limit == 0 || Count_Characters(value) <= limit) return value;
  value.resize(Bytes_Of_Characters(value, limit - 1));
  return value + "…";
}

void Erase_All(std::string& text, std::string_view part) {
  if (part.empty()) return;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
    text.erase(at, part.size());
  }
}

// Whether a text is best set like a number. The engine is not asked: looks are what counts here.
bool Looks_Like_Number(std::string text) {
  const Separators separators = Current_Separators();
  if (text.size() > 256) return text.find_first_not_of("0123456789.,-") == std::string::npos;
  Erase_All(text, Current_Currency().symbol());
  Erase_All(text, separators.thousands());
  Erase_All(text, separators.decimal());
  const std::size_t exponent = text.find('E');
  if (exponent != std::string::npos) text.erase(exponent, 2);
  if (text.starts_with('(') && text.ends_with(')')) text = text.substr(1, text.size() - 2);
  if (text.starts_with('-')) text.erase(0, 1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

bool Sets_Right(const Cell& cell) {
  const HostValue& value = cell.value();
  if (value.kind() == HostValue::Kind::number) return true;
  return value.is_text() && Looks_Like_Number(value.text());
}

class Grid {
 public:
  Grid(const Worksheet& sheet, const Grid_Options& options) : sheet_(sheet), options_(options) {
    for (auto place = sheet.cells().begin(); place != sheet.cells().end(); ++place) measure(place);
  }

  void print(std::ostream& out) const {
    std::uint32_t row = 1;
    for (auto place = sheet_.cells().begin(); place != sheet_.cells().end();) {
      for (; row < place->first.row; ++row) out << '\n';
      Yield();
      place = print_row(out, place);
      ++row;
    }
  }

 private:
  std::string shown(const Cell& cell) const {
    return Cut(Without_Controls(Shown_Value(cell)), options_.width_limit);
  }

  bool is_last_in_row(Cell_Place place) const {
    const auto next = std::next(place);
    return next == sheet_.cells().end() || next->first.row != place->first.row;
  }

  bool is_first_in_row(Cell_Place place) const {
    return place == sheet_.cells().begin() || std::prev(place)->first.row != place->first.row;
  }

  void measure(Cell_Place place) {
    const auto& [address, cell] = *place;
    std::size_t& width = widths_[address.column];
    if (!Sets_Right(cell) && is_first_in_row(place) && is_last_in_row(place)) return;
    width = std::max(width, Count_Characters(shown(cell)));
  }

  // Prints the row of cells that begins at `place`; gives where the next one begins.
  Cell_Place print_row(std::ostream& out, Cell_Place place) const {
    auto column = widths_.begin();
    std::size_t blanks = 0;  // held back, so that no line ends in them
    for (bool last = false; !last; ++place) {
      const auto& [address, cell] = *place;
      for (; column->first < address.column; ++column) blanks += column->second + column_gap.size();
      const std::string text = shown(cell);
      const std::size_t used = Count_Characters(text);
      const std::size_t spare = column->second > used ? column->second - used : 0;
      const bool right = Sets_Right(cell);
      out << std::string(blanks + (right ? spare : 0), ' ') << text;
      blanks = (right ? 0 : spare) + column_gap.size();
      last = is_last_in_row(place);
      ++column;
    }
    out << '\n';
    return place;
  }

  const Worksheet& sheet_;
  const Grid_Options& options_;
  std::map<std::uint32_t, std::size_t> widths_;
};

}  // namespace

void Print_Grid(std::ostream& out, const Worksheet& sheet, const Grid_Options& options) {
  Grid(sheet, options).print(out);
}

}  // namespace quorvex
