#include "sheet/grid.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <string_view>

#include "formula/utf8.h"
#include "formula/visible.h"
#include "host/platform.h"
#include "host/utf8.h"
#include "sheet/number_looks.h"

namespace quorvex {

namespace {

using Cell_Place = std::map<Cell_Address, Cell>::const_iterator;

constexpr std::string_view column_gap = "  ";
constexpr std::size_t narrowest = 4;  // of the columns that have to give way

std::string Cut(std::string value, std::size_t limit) {
  if (limit == 0 || Count_Characters(value) <= limit) return value;
  value.resize(Bytes_Of_Characters(value, limit - 1));
  return value + "…";
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
    if (options.total_width > 0) fit(options.total_width);
  }

  bool is_shortened() const { return column_limit_ > 0; }

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
  static std::string shown(const Cell& cell, std::size_t limit) {
    return Cut(Visible(Shown_Value(cell)), limit);
  }

  bool is_last_in_row(Cell_Place place) const {
    const auto next = std::next(place);
    return next == sheet_.cells().end() || next->first.row != place->first.row;
  }

  bool is_first_in_row(Cell_Place place) const {
    return place == sheet_.cells().begin() || std::prev(place)->first.row != place->first.row;
  }

  bool is_note(Cell_Place place) const {
    return !Sets_Right(place->second) && is_first_in_row(place) && is_last_in_row(place);
  }

  void measure(Cell_Place place) {
    const auto& [address, cell] = *place;
    std::size_t& width = widths_[address.column];
    if (is_note(place)) return;
    width = std::max(width, Count_Characters(shown(cell, options_.width_limit)));
  }

  std::size_t width_at_limit(std::size_t limit) const {
    std::size_t width = 0;
    for (const auto& [column, widest] : widths_)
      width += std::min(widest, limit) + column_gap.size();
    return width - std::min(width, column_gap.size());
  }

  // The widest columns give way first.
  void fit(std::size_t total) {
    std::size_t limit = std::max(total, narrowest);
    while (limit > narrowest && width_at_limit(limit) > total) --limit;
    for (auto& [column, width] : widths_) {
      if (width <= limit) continue;
      width = column_limit_ = limit;
    }
  }

  // Prints the row of cells that begins at `place`; gives where the next one begins.
  Cell_Place print_row(std::ostream& out, Cell_Place place) const {
    auto column = widths_.begin();
    std::size_t blanks = 0;  // held back, so that no line ends in them
    for (bool last = false; !last; ++place) {
      const auto& [address, cell] = *place;
      for (; column->first < address.column; ++column) blanks += column->second + column_gap.size();
      const bool is_cut = is_shortened() && !is_note(place);
      const std::string text = shown(cell, is_cut ? column->second : options_.width_limit);
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
  std::size_t column_limit_ = 0;  // of the columns that were shortened; 0 if none was
};

}  // namespace

bool Print_Grid(std::ostream& out, const Worksheet& sheet, const Grid_Options& options) {
  const Grid grid(sheet, options);
  grid.print(out);
  return !grid.is_shortened();
}

}  // namespace quorvex
