// What stands between the cells of a file.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvex {

/// How a file separates its cells.
struct Csv_Form {
  char separator = ',';
  bool is_announced = false;  // by a line like "sep=;" at the start
};

/// The form of a text, as its first lines tell: a line "sep=;" decides; else comma, semicolon and
/// tab are told apart by which stands equally often in the most rows. Separators
/// within quote marks and within the parentheses of a formula don't count.
Csv_Form Form_Of(std::string_view text);

/// Whether a cell's text, with what is written behind it, could be taken for such a line.
bool Looks_Announcing(std::string_view text);

/// Bytes of the line that announces the separator, with its line end; 0 if there is none.
std::size_t Announcement_Length(std::string_view text);

}  // namespace quorvex
