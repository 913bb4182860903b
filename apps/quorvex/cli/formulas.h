// Formulas from the command line, from standard input and from the prompt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/session.h"
#include "frame/catalogue.h"

namespace quorvex {

/// Calculates a formula and writes its result, or what is wrong with it; `place` (as "line 3: ")
/// comes before a message. An error as the result counts as a failed calculation.
Outcome Calculate(Session& session, std::string_view formula, std::string_view place = {});

/// Calculates the formulas in order; "-" stands for those on standard input.
Outcome Calculate_All(Session& session, const std::vector<std::string>& formulas);

/// Calculates the formulas on standard input, one a line. Blank lines are skipped, and notes: lines
/// of "#" alone or followed by a blank. (#N/A is a formula.)
Outcome Calculate_Input(Session& session);

}  // namespace quorvex
