// A worksheet from a CSV file that is open in the embedded spreadsheet.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/session.h"
#include "formula/reasons.h"
#include "sheet/csv.h"
#include "sheet/sheet_application.h"

namespace quorvex {

struct Sheet_Options {
  std::string file;
  std::string output;  // a CSV file, or "-" for CSV on standard output; empty for a printed grid
  std::vector<std::string> names;    // NAME=REFERENCE
  std::optional<std::size_t> width;  // 0 cuts nothing; without one, columns are fit to a terminal
  std::optional<char> separator;     // of the cells of the file, if it is not to be found out
  Explain explain = Explain::yes;
  bool formulas = false;  // written in the place of their values
  bool force = false;     // the file itself may be written onto
  bool silent = false;    // nothing is printed or written
  bool watch = false;
};

class Open_Sheet {
 public:
  Open_Sheet(Session& session, Sheet_Options options);

  /// Reads the file, anew if it was read before, tells the engine that this is its host, calculates
  /// the worksheet, and prints or writes it; what is wrong with cells goes to standard error.
  /// Throws `File_Error` and `Usage_Error`, and then leaves what was open before.
  Outcome load();

  /// Calculates what the engine has written to cells, and everything where the default limit is
  /// another one than before; then prints or writes the worksheet again. Nothing where neither is
  /// so. Throws `File_Error`.
  Outcome update();

  /// Null before a file was read.
  const Worksheet* worksheet() const { return sheet_; }

 private:
  Outcome calculate(const std::function<void(const Progress&)>& work);
  std::string file_name() const { return File_Name(options_.file); }
  void check_output() const;
  void show() const;

  Session& session_;
  Sheet_Options options_;
  std::shared_ptr<Sheet_Application> application_;
  Csv_Form form_;
  const Worksheet* sheet_ = nullptr;  // of the application
  double limit_ = 0;                  // at which it was calculated
};

}  // namespace quorvex
