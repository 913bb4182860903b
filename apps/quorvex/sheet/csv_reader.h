// Splitting comma-separated values into cells.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "sheet/worksheet.h"

namespace quorvex {

/// Reads one text from its start to its end.
class Csv_Reader {
 public:
  /// `text` has no byte order mark and is valid UTF-8.
  Csv_Reader(std::string_view text, std::string_view source, Worksheet& sheet)
      : text_(text), source_(source), sheet_(sheet) {}

  /// Throws `File_Error` with the place of what can't be read.
  void read();

 private:
  void read_line();
  void read_note();
  void read_cell();
  std::string quoted_cell();
  void put(std::string_view typed);
  void end_line();
  bool at_line_end() const;
  [[noreturn]] void fail(const std::string& message, std::size_t at) const;

  std::string_view text_;
  std::string_view source_;
  Worksheet& sheet_;
  std::size_t at_ = 0;
  Cell_Address cell_;
};

}  // namespace quorvex
