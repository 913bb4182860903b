// Runs the tool as a process of its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/environment.h"
#include "support/text_files.h"

namespace quorvex {

struct Tool_Run {
  std::string output;
  std::string errors;
  int exit_code = -1;  // less than 0: ended by that signal
};

/// Runs the tool in the C locale, and without settings from earlier runs, with this text as its
/// standard input; `environment` adds variables of the form NAME=value.
Tool_Run Run_Tool(const std::vector<std::string>& arguments, std::string_view input = {},
                  const std::vector<std::string>& environment = {});

}  // namespace quorvex
