// `quorvex sheet`: a worksheet from a CSV file, calculated.
#pragma once

#include "cli/open_sheet.h"
#include "cli/session.h"

namespace quorvex {

/// Calculates the worksheet, then prints or writes it; what is wrong with cells goes to standard
/// error. Told to watch, it does so again whenever the file changes or another default limit is
/// stored, and never comes back. Throws `File_Error` and `Usage_Error`.
Outcome Calculate_Sheet(Session& session, const Sheet_Options& options);

}  // namespace quorvex
