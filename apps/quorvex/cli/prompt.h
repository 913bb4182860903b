// The prompt: formulas and a few words of command, typed on a terminal.
#pragma once

#include <string_view>

#include "cli/line_editor.h"
#include "cli/session.h"

namespace quorvex {

/// Reads and calculates until the user leaves. What failed on the way is no failure of the run.
Outcome Run_Prompt(Session& session);

/// Completes names of functions, a "(" behind them, and at the beginning of a line the commands.
Completion Complete_Word(std::string_view before_cursor);

}  // namespace quorvex
