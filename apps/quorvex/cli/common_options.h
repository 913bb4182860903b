// Options that all calculating commands share.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "io/call_guard.h"

namespace CLI {
class App;
}

namespace quorvex {

struct Common_Options {
  std::optional<std::string> locale_name;
  std::optional<std::string> decimal;
  std::optional<std::string> thousands;
  std::optional<std::string> currency;
  std::optional<std::string> currency_side;
  std::optional<double> digits;
  std::optional<double> timeout;
  std::optional<double> memory;  // bytes
  bool quiet = false;
};

/// Gives a command these options.
void Add_Common_Options(CLI::App& command, Common_Options& options);

/// Puts the options into force for this process, with the usual limit of time in seconds, or 0 for
/// none, where they give no other. Throws `Usage_Error` for a locale that is not there or can't be
/// used.
std::shared_ptr<Call_Guard> Apply(const Common_Options& options, double usual_timeout);

}  // namespace quorvex
