// `quorvex sheet`: a worksheet from a CSV file, calculated.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/session.h"

namespace quorvex {

struct Sheet_Options {
  std::string file;
  std::string output;  // a CSV file, or "-" for CSV on standard output; empty for a printed grid
  std::vector<std::string> names;  // NAME=REFERENCE
  std::size_t width = 0;           // 0 cuts nothing
};

/// Calculates the worksheet, then prints or writes it; what is wrong with cells goes to standard
/// error. Throws `File_Error` and `Usage_Error`.
Outcome Calculate_Sheet(Session& session, const Sheet_Options& options);

}  // namespace quorvex
