// Splitting comma-separated values into cells.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "sheet/worksheet.h"

namespace quorvex {

/// Reads one text from its start to its end.
class Csv_Reader {
 public:
  /// `text` has no byte order mark and is valid UTF-8.
  Csv_Reader(std::string_view text, std::string_view source, Worksheet& sheet, char separator)
      : text_(text),
        source_(source),
        sheet_(sheet),
        separator_(separator),
        cell_ends_{separator, '\r', '\n', '"'} {}

  /// Reads from the byte `start` on. Throws `File_Error` with the place of what can't be read.
  void read(std::size_t start);

 private:
  void read_line();
  void read_note();
  void read_cell();
  std::string quoted_cell();
  void read_plain_cell();
  void put(std::string_view typed);
  void end_line();
  bool at_line_end() const;
  std::string between_arguments() const;  // in an example that fits the file
  [[noreturn]] void fail(const std::string& message, std::size_t at) const;

  std::string_view text_;
  std::string_view source_;
  Worksheet& sheet_;
  char separator_;
  std::string cell_ends_;                   // what a cell without quote marks may end at
  std::optional<std::size_t> cut_formula_;  // the start of one in this line that a separator ended
  std::size_t at_ = 0;
  Cell_Address cell_;
};

}  // namespace quorvex
