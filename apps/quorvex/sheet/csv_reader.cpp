#include "sheet/csv_reader.h"

#include <algorithm>

#include "host/platform.h"
#include "host/utf8.h"
#include "sheet/file_error.h"

namespace quorvex {

void Csv_Reader::read(std::size_t start) {
  at_ = start;
  while (at_ < text_.size()) {
    read_line();
    end_line();
  }
}

void Csv_Reader::read_line() {
  Yield();
  if (cell_.row > maximum_rows) {
    fail("a worksheet has no more than " + std::to_string(maximum_rows) + " rows", at_);
  }
  if (text_.substr(at_).starts_with("# ")) return read_note();
  cut_formula_.reset();
  for (;;) {
    read_cell();
    if (at_ == text_.size() || text_[at_] != separator_) return;
    ++at_;
    ++cell_.column;
  }
}

void Csv_Reader::read_note() {
  const std::size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
  sheet_.set_text(cell_, std::string(text_.substr(at_, end - at_)));
  at_ = end;
}

void Csv_Reader::read_cell() {
  if (at_ < text_.size() && text_[at_] == '"') return put(quoted_cell());
  read_plain_cell();
}

void Csv_Reader::read_plain_cell() {
  const std::size_t start = at_;
  const std::size_t end = std::min(text_.find_first_of(cell_ends_, at_), text_.size());
  if (end < text_.size() && text_[end] == '"') {
    fail(
        "a quote mark inside a cell that has none at its start; put the whole cell in quote "
        "marks and double those in it",
        end);
  }
  put(text_.substr(at_, end - at_));
  at_ = end;
  const bool is_cut = at_ < text_.size() && text_[at_] == separator_ && text_[start] == '=' &&
                      sheet_.advise(cell_,
                                    "; the cell ends here, at a separator: put the formula in "
                                    "quote marks, as in \"=qvxADD(A1" +
                                        between_arguments() + "B1)\"");
  if (is_cut) cut_formula_ = start;
}

std::string Csv_Reader::quoted_cell() {
  const std::size_t start = at_++;
  std::string cell;
  for (;;) {
    const std::size_t quote = text_.find('"', at_);
    if (quote == std::string_view::npos) fail("this quote mark is never closed", start);
    cell.append(text_.substr(at_, quote - at_));
    at_ = quote + 1;
    if (at_ == text_.size() || text_[at_] != '"') break;
    cell += '"';
    ++at_;
  }
  if (at_ < text_.size() && text_[at_] != separator_ && !at_line_end()) {
    if (cut_formula_) {
      fail(
          "a formula with separators or quote marks in it stands in quote marks, and those in it "
          "are doubled: \"=qvxADD(A1" +
              between_arguments() + "\"\"5\"\")\"",
          *cut_formula_);
    }
    fail("text behind a closing quote mark; a quote mark inside a cell is written twice", at_);
  }
  return cell;
}

void Csv_Reader::put(std::string_view typed) {
  if (typed.empty()) return;
  if (cell_.column > maximum_columns) {
    fail("a worksheet has no more than " + std::to_string(maximum_columns) + " columns", at_);
  }
  sheet_.set(cell_, typed);
}

bool Csv_Reader::at_line_end() const {
  return text_[at_] == '\n' || text_[at_] == '\r';
}

void Csv_Reader::end_line() {
  if (text_.substr(at_).starts_with("\r\n")) ++at_;
  ++at_;
  ++cell_.row;
  cell_.column = 1;
}

std::string Csv_Reader::between_arguments() const {
  return separator_ == ';' ? ";" : ",";
}

void Csv_Reader::fail(const std::string& message, std::size_t at) const {
  const std::string_view before = text_.substr(0, at);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t line_start = before.rfind('\n') + 1;  // 0 if there is none
  const std::size_t column = Count_Characters(before.substr(line_start)) + 1;
  throw File_Error(std::string(source_) + ", line " + std::to_string(line) + ", column " +
                   std::to_string(column) + ": " + message);
}

}  // namespace quorvex
