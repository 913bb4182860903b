// Results as people read them.
#include "sheet/result_text.h"

#include <cstdint>
#include <sstream>
#include <string_view>

#include "formula/evaluate.h"
#include "host/platform.h"
#include "sheet/grid.h"
#include "sheet/worksheet.h"

namespace quorvex {
namespace {

void Append_Line(std::string& out, std::string_view line) {
  out.append(line).append("\n");
}

// What no worksheet is large enough for stands without columns, a row in each line.
template <typename Cell_Value>
void Append_Rows(std::string& out, std::size_t rows, std::size_t columns, const Cell_Value& cell) {
  for (std::size_t row = 1; row <= rows; ++row) {
    Yield();
    for (std::size_t column = 1; column <= columns; ++column)
      out.append(column > 1 ? "  " : "").append(Render(cell(row, column)));
    out += '\n';
  }
}

// `cell` gives the value at a row and a column, both counted from 1.
template <typename Cell_Value>
void Append_Grid(std::string& out, std::size_t rows, std::size_t columns, const Cell_Value& cell) {
  if (rows > maximum_rows || columns > maximum_columns)
    return Append_Rows(out, rows, columns, cell);
  Worksheet sheet("result");
  for (std::uint32_t row = 1; row <= rows; ++row) {
    for (std::uint32_t column = 1; column <= columns; ++column)
      sheet.set_text({row, column}, Render(cell(row, column)));
  }
  std::ostringstream text;
  Print_Grid(text, sheet);
  out += text.str();
}

void Append_Value(std::string& out, const HostValue& value) {
  if (value.kind() == HostValue::Kind::range) {
    const Range& range = value.range();
    Append_Grid(out, range.rows(), range.columns(),
                [&](std::size_t row, std::size_t column) { return range.cell(row, column); });
  } else if (value.kind() == HostValue::Kind::array) {
    const Array& array = value.array();
    Append_Grid(out, array.rows, array.columns,
                [&](std::size_t row, std::size_t column) -> const HostValue& {
                  return array.values[(row - 1) * array.columns + column - 1];
                });
  } else {
    Append_Line(out, Render(value));
  }
}

}  // namespace

void Append_Result_Lines(std::string& out, const Call_Result& result) {
  if (const auto* record = std::get_if<Record>(&result)) {
    for (const auto& [name, value] : record->fields)
      Append_Line(out, std::string(name) + ": " + Render(value));
  } else if (const auto* value = std::get_if<HostValue>(&result)) {
    Append_Value(out, *value);
  }
}

}  // namespace quorvex
