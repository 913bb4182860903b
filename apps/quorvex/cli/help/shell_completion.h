// Completion of command lines in the shells bash and zsh.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace quorvex {

/// The completion script for bash: commands, options, names of functions, files.
std::string Bash_Completion(const CLI::App& app);

/// The same for zsh, with the descriptions that it shows beside its offers.
std::string Zsh_Completion(const CLI::App& app);

}  // namespace quorvex
