// The manual page of the tool, in the language of man.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace quorvex {

/// The page quorvex(1): the commands and options of the command line as they are described there,
/// and the functions of the catalogue.
std::string Manual_Page(const CLI::App& app);

}  // namespace quorvex
