// Formulas from the command line, from standard input and from the prompt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/session.h"
#include "formula/evaluate.h"

namespace quorvex {

/// Calculates formulas and writes their results, or what is wrong with them. An error as the result
/// counts as a failed calculation.
class Formulas {
 public:
  /// `source` is where formulas find cells and names; null where there is no worksheet.
  explicit Formulas(Session& session, Reference_Source* source = nullptr,
                    Explain explain = Explain::yes)
      : session_(session), source_(source), explain_(explain) {}

  /// `place` (as "line 3: ") comes before a message. The value is kept in `result`; what is none,
  /// or couldn't be calculated, leaves it as it is.
  Outcome calculate(std::string_view formula, std::string_view place = {},
                    HostValue* result = nullptr);

  /// In order; "-" stands for the formulas on standard input.
  Outcome calculate_all(const std::vector<std::string>& formulas);

  /// The formulas on standard input, one a line. Blank lines are skipped, and notes: lines of "#"
  /// alone or followed by a blank. (#N/A is a formula.)
  Outcome calculate_input();

 private:
  Evaluation evaluate(std::string_view formula);

  Session& session_;
  Reference_Source* source_;
  Explain explain_;
};

}  // namespace quorvex
