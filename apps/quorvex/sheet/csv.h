// Comma-separated values (RFC 4180, UTF-8) in and out of worksheets.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

#include "sheet/csv_separator.h"
#include "sheet/file_error.h"
#include "sheet/worksheet.h"

namespace quorvex {

/// Fills a worksheet from the text of a file, each cell as if typed by hand, and tells how its
/// cells are separated: by `separator`, or else as `Form_Of` finds. A line that begins with "# " is
/// a note: one text cell, whatever commas and quote marks stand in it. Throws `File_Error` with
/// line and column for a broken quote, for bytes that are no UTF-8 text, and for more rows or
/// columns than a worksheet has. `source` names the text in messages.
Csv_Form Read_Csv(std::string_view text, std::string_view source, Worksheet& sheet,
                  std::optional<char> separator = {});
/// The same from a file; "-" stands for standard input. A missing file, a directory and a binary
/// file are a `File_Error`, and so is a text for which time or memory don't suffice.
Csv_Form Load_Csv(const std::filesystem::path& file, Worksheet& sheet,
                  std::optional<char> separator = {});

/// How messages name a file: "-" is standard input.
std::string File_Name(const std::filesystem::path& file);

enum class Csv_Content { values, formulas };

/// Writes the used cells and all to the left of and above them. What was typed stays as it was
/// typed; of formulas the values are written, as shown, or the formulas themselves. Text that
/// another spreadsheet would take for a formula gets an apostrophe, after which this one reads the
/// same text.
void Write_Csv(std::ostream& out, const Worksheet& sheet, Csv_Form form = {},
               Csv_Content content = Csv_Content::values);
/// The same into a file, which is replaced as a whole or not at all. Throws `File_Error`.
void Save_Csv(const std::filesystem::path& file, const Worksheet& sheet, Csv_Form form = {},
              Csv_Content content = Csv_Content::values);

}  // namespace quorvex
