#include "sheet/csv.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <functional>
#include <new>
#include <ostream>
#include <string>
#include <system_error>

#include "formula/utf8.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/utf8.h"
#include "io/temporary_file.h"
#include "io/whole_text.h"
#include "sheet/csv_reader.h"
#include "sheet/number_looks.h"

namespace quorvex {

namespace {

namespace fs = std::filesystem;

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
  const std::string named = File_Name(file);
  try {
    if (file == "-") return Text_From(STDIN_FILENO);
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
      throw File_Error(named + ": there is no such file.");
    if (fs::is_directory(status)) throw File_Error(named + " is a directory, not a file.");
    return Text_Of_File(file);
  } catch (const std::system_error& error) {
    throw File_Error(named + " can't be read: " + error.code().message() + ".");
  }
}

class Csv_Writer {
 public:
  Csv_Writer(std::ostream& out, const Worksheet& sheet, Csv_Form form, Csv_Content content)
      : out_(out), sheet_(sheet), form_(form), content_(content) {}

  void write() {
    if (form_.is_announced) out_ << "sep=" << form_.separator << '\n';
    const auto used = sheet_.used_range();
    if (!used) return;
    // Nothing else would tell a reader which of the marks in its cells are separators.
    is_single_column_ = used->last.column == 1;
    auto cell = sheet_.cells().begin();
    for (std::uint32_t row = 1; row <= used->last.row; ++row) {
      Yield();
      for (std::uint32_t column = 1; column <= used->last.column; ++column) {
        if (column > 1) out_ << form_.separator;
        if (cell == sheet_.cells().end() || cell->first != Cell_Address{row, column}) continue;
        const Cell& stored = cell->second;
        if (stored.typed.empty() || stored.typed.front() == '=' || stored.constant.is_text()) {
          write_cell(text_of(stored));
        } else {
          write_cell(stored.typed);
        }
        ++cell;
      }
      out_ << '\n';
    }
  }

 private:
  std::string text_of(const Cell& cell) const {
    const bool is_formula = cell.typed.starts_with('=');
    // What the array of a formula fills is no content of its own, and would be in the way of it.
    if (content_ == Csv_Content::formulas) {
      if (cell.spilled_from) return {};
      if (is_formula) return cell.typed;
    }
    std::string text = is_formula || cell.typed.empty() ? Shown_Value(cell) : cell.typed;
    if (cell.value().is_text()) Disarm(text);
    return text;
  }

  // Number text begins with a minus, too, and is what it looks like everywhere.
  static void Disarm(std::string& text) {
    constexpr std::string_view openings = "=+-@\t\r";
    if (text.empty() || openings.find(text.front()) == std::string_view::npos) return;
    if (!Looks_Like_Number(text)) text.insert(0, 1, '\'');
  }

  bool is_plain(const std::string& text) const {
    if (text.empty()) return true;
    const bool is_risky =
        std::any_of(text.begin(), text.end(), [this](char c) { return is_mark(c); });
    return !is_risky && text.front() != ' ' && text.back() != ' ' && text.front() != '#' &&
           !text.starts_with(byte_order_mark) && !Looks_Announcing(text);
  }

  bool is_mark(char c) const {
    if (c == form_.separator || c == '"' || c == '\n' || c == '\r') return true;
    return is_single_column_ && (c == ',' || c == ';' || c == '\t');
  }

  void write_cell(const std::string& text) {
    if (is_plain(text)) {
      out_ << text;
      return;
    }
    out_ << '"';
    for (const char c : text) {
      if (c == '"') out_ << c;
      out_ << c;
    }
    out_ << '"';
  }

  std::ostream& out_;
  const Worksheet& sheet_;
  Csv_Form form_;
  Csv_Content content_;
  bool is_single_column_ = false;
};

using Write = std::function<void(std::ostream&)>;

// `named` is what the user calls the file.
void Write_To(const fs::path& file, const fs::path& named, const Write& write) {
  errno = 0;
  std::ofstream out(file, std::ios::binary);
  if (out) write(out);
  out.close();
  if (!out) throw File_Error(named.string() + " can't be written: " + System_Message(errno) + ".");
}

void Replace(const fs::path& file, const fs::path& named, const Write& write) {
  try {
    Temporary_File temporary(file);
    Write_To(temporary.path(), named, write);
    temporary.take_place();
  } catch (const std::system_error& error) {
    throw File_Error(named.string() + " can't be written: " + error.code().message() + ".");
  }
}

}  // namespace

std::string File_Name(const fs::path& file) {
  return file == "-" ? "standard input" : file.string();
}

Csv_Form Read_Csv(std::string_view text, std::string_view source, Worksheet& sheet,
                  std::optional<char> separator) {
  Require_Text(text, source);
  if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
  Csv_Form form = Form_Of(text);
  if (separator) form.separator = *separator;
  Csv_Reader(text, source, sheet, form.separator).read(Announcement_Length(text));
  return form;
}

Csv_Form Load_Csv(const fs::path& file, Worksheet& sheet, std::optional<char> separator) {
  try {
    return Read_Csv(Contents(file), File_Name(file), sheet, separator);
  } catch (const Run_Time_Failure& failure) {
    throw File_Error(File_Name(file) + " can't be read: " + failure.what());
  } catch (const std::bad_alloc&) {
    throw File_Error(File_Name(file) + " can't be read: There is not enough memory.");
  }
}

void Write_Csv(std::ostream& out, const Worksheet& sheet, Csv_Form form, Csv_Content content) {
  Csv_Writer(out, sheet, form, content).write();
}

void Save_Csv(const fs::path& file, const Worksheet& sheet, Csv_Form form, Csv_Content content) {
  const Write write = [&](std::ostream& out) { Write_Csv(out, sheet, form, content); };
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status)) throw File_Error(file.string() + " is a directory, not a file.");
  // A pipe or a terminal takes the text as it comes and can't be replaced.
  if (fs::exists(status) && !fs::is_regular_file(status)) return Write_To(file, file, write);
  const fs::path target = fs::weakly_canonical(file, error);
  Replace(error ? file : target, file, write);
}

}  // namespace quorvex
