// The prompt: formulas and a few words of command, typed on a terminal.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/line_editor.h"
#include "cli/session.h"

namespace quorvex {

/// Reads and calculates until the user leaves. What failed on the way is no failure of the run. A
/// worksheet may be opened first.
Outcome Run_Prompt(Session& session, const std::optional<std::string>& worksheet = {});

/// Completes names of functions, a "(" behind them, at the beginning of a line the commands, and
/// behind "sheet" files.
Completion Complete_Word(std::string_view before_cursor);

}  // namespace quorvex
