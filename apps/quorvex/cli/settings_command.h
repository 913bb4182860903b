// `quorvex settings` and `quorvex about`.
#pragma once

#include <optional>
#include <string>

#include "cli/session.h"

namespace quorvex {

struct Settings_Words {
  std::optional<std::string> name;
  std::optional<std::string> value;
};

/// Shows the settings, shows one, or stores one. Without a name, on a terminal, opens the dialog.
/// Throws `Usage_Error` for a value that the dialog would not take, and where it can't be stored.
Outcome Run_Settings(Session& session, const Settings_Words& words);

Outcome Run_About(Session& session);

}  // namespace quorvex
