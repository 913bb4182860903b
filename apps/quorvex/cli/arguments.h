// What the command line can ask for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/common_options.h"
#include "cli/open_sheet.h"
#include "cli/settings_command.h"

namespace CLI {
class App;
}

namespace quorvex {

struct Arguments {
  Common_Options common;
  std::vector<std::string> formulas;
  std::optional<std::string> worksheet;  // whose cells the formulas can use
  Sheet_Options sheet;
  Settings_Words settings;
  std::vector<std::string> function;
  bool programs = false;
  bool markdown = false;
  bool manual_page = false;
  std::string completion;
  unsigned jobs = 1;
  // What a single call may ask of the server that answers it, in bytes.
  std::size_t longest_line = std::size_t{64} << 20;
  std::size_t longest_answer = std::size_t{64} << 20;
};

/// Gives the command line its commands and options, which fill the arguments in.
void Describe(CLI::App& app, Arguments& arguments);

}  // namespace quorvex
