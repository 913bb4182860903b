#include "sheet/csv.h"

#include <cerrno>
#include <fstream>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <system_error>

#include "formula/utf8.h"
#include "host/platform.h"
#include "sheet/csv_reader.h"

namespace quorvex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

void Require_Text(std::string_view text, std::string_view source) {
  if (text.find('\0') != std::string_view::npos) {
    throw File_Error(std::string(source) + " is a binary file, not comma-separated text.");
  }
  if (const auto bad = First_Bad_Byte(text)) {
    throw File_Error(std::string(source) + " is not UTF-8 text: byte " + std::to_string(*bad + 1) +
                     " belongs to no character.");
  }
}

std::string System_Message(int error) {
  return std::error_code(error, std::generic_category()).message();
}

std::string Contents(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) {
    throw File_Error(file.string() + ": there is no such file.");
  }
  if (fs::is_directory(status)) {
    throw File_Error(file.string() + " is a directory, not a file.");
  }
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (!in) throw File_Error(file.string() + " can't be opened: " + System_Message(errno) + ".");
  std::ostringstream text;
  if (in.peek() != std::ifstream::traits_type::eof()) text << in.rdbuf();
  if (in.bad()) throw File_Error(file.string() + " can't be read: " + System_Message(errno) + ".");
  return std::move(text).str();
}

void Write_Cell(std::ostream& out, const std::string& value) {
  const bool plain = value.find_first_of(",\"\r\n") == std::string::npos &&
                     !value.starts_with(' ') && !value.ends_with(' ') && !value.starts_with('#');
  if (plain) {
    out << value;
    return;
  }
  out << '"';
  for (const char c : value) {
    if (c == '"') out << c;
    out << c;
  }
  out << '"';
}

void Write_To(const fs::path& file, const Worksheet& sheet) {
  errno = 0;
  std::ofstream out(file, std::ios::binary);
  if (out) Write_Csv(out, sheet);
  out.close();
  if (!out) throw File_Error(file.string() + " can't be written: " + System_Message(errno) + ".");
}

// Beside the file itself, since only within one folder a renaming replaces it as a whole.
fs::path Temporary_Beside(const fs::path& file) {
  fs::path temporary = file;
  temporary += ".part" + std::to_string(std::random_device()());
  return temporary;
}

void Replace(const fs::path& file, const Worksheet& sheet) {
  const fs::path temporary = Temporary_Beside(file);
  std::error_code ignored;
  try {
    Write_To(temporary, sheet);
    const fs::file_status old = fs::status(file, ignored);
    if (fs::exists(old)) fs::permissions(temporary, old.permissions(), ignored);
    fs::rename(temporary, file);
  } catch (const fs::filesystem_error& error) {
    fs::remove(temporary, ignored);
    throw File_Error(file.string() + " can't be written: " + error.code().message() + ".");
  } catch (...) {
    fs::remove(temporary, ignored);
    throw;
  }
}

}  // namespace

void Read_Csv(std::string_view text, std::string_view source, Worksheet& sheet) {
  Require_Text(text, source);
  if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
  Csv_Reader(text, source, sheet).read();
}

void Load_Csv(const fs::path& file, Worksheet& sheet) {
  Read_Csv(Contents(file), file.string(), sheet);
}

void Write_Csv(std::ostream& out, const Worksheet& sheet) {
  const auto used = sheet.used_range();
  if (!used) return;
  auto cell = sheet.cells().begin();
  for (std::uint32_t row = 1; row <= used->last.row; ++row) {
    Yield();
    for (std::uint32_t column = 1; column <= used->last.column; ++column) {
      if (column > 1) out << ',';
      if (cell == sheet.cells().end() || cell->first != Cell_Address{row, column}) continue;
      Write_Cell(out, Shown_Value(cell->second));
      ++cell;
    }
    out << '\n';
  }
}

void Save_Csv(const fs::path& file, const Worksheet& sheet) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status)) throw File_Error(file.string() + " is a directory, not a file.");
  // A pipe or a terminal takes the text as it comes and can't be replaced.
  if (fs::exists(status) && !fs::is_regular_file(status)) return Write_To(file, sheet);
  const fs::path target = fs::weakly_canonical(file, error);
  Replace(error ? file : target, sheet);
}

}  // namespace quorvex
