// Comma-separated values (RFC 4180, UTF-8) in and out of worksheets.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string_view>

#include "sheet/file_error.h"
#include "sheet/worksheet.h"

namespace quorvex {

/// Fills a worksheet from the text of a file, each cell as if typed by hand. A line that begins
/// with "# " is a note: one text cell, whatever commas and quote marks stand in it. Throws
/// `File_Error` with line and column for a broken quote, for bytes that are no UTF-8 text, and for
/// more rows or columns than a worksheet has. `source` names the text in messages.
void Read_Csv(std::string_view text, std::string_view source, Worksheet& sheet);
/// The same from a file. A missing file, a directory and a binary file are a `File_Error`.
void Load_Csv(const std::filesystem::path& file, Worksheet& sheet);

/// Writes the values of the used cells and all to the left of and above them, as shown.
void Write_Csv(std::ostream& out, const Worksheet& sheet);
/// The same into a file, which is replaced as a whole or not at all. Throws `File_Error`.
void Save_Csv(const std::filesystem::path& file, const Worksheet& sheet);

}  // namespace quorvex
