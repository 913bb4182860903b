// Cells and blocks of cells, and how they are written: B3, $B$3.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex {

inline constexpr std::uint32_t maximum_rows = 1048576;
inline constexpr std::uint32_t maximum_columns = 16384;

/// A cell of a worksheet; rows and columns count from 1. Orders row by row.
struct Cell_Address {
  std::uint32_t row = 1;
  std::uint32_t column = 1;

  friend bool operator==(const Cell_Address&, const Cell_Address&) = default;
  friend bool operator<(const Cell_Address& one, const Cell_Address& other) {
    return one.row != other.row ? one.row < other.row : one.column < other.column;
  }
};

/// A block of cells with its upper left and its lower right corner.
struct Cell_Area {
  Cell_Address first;
  Cell_Address last;

  friend bool operator==(const Cell_Area&, const Cell_Area&) = default;
  bool contains(Cell_Address cell) const;
};

/// The block between two corners, given in any order.
Cell_Area Area_Between(Cell_Address one, Cell_Address other);

/// "AB" for column 28.
std::string Column_Letters(std::uint32_t column);
/// "B3".
std::string Address_Text(Cell_Address cell);
/// "B3", or "A1:B3" for more than one cell.
std::string Area_Text(const Cell_Area& area);

/// True for what is written like a cell (one to three letters, then digits, each perhaps after a
/// "$"), whether or not the worksheet is that large.
bool Looks_Like_Cell(std::string_view text);
/// The cell that a text like B3 or $B$3 names; nothing if there is no such cell.
std::optional<Cell_Address> Read_Address(std::string_view text);

}  // namespace quorvex
