// What the host's function dialog is told.
#pragma once

#include <string>
#include <vector>

namespace quorvex {

/// A macro of the add-in workbook, as the host's function dialog shows it.
struct Registration {
  std::string macro;
  std::string description;
  std::string category;
};

/// All macros, in the order in which they are registered. Those that are methods of the class are
/// described as the catalogue describes them.
std::vector<Registration> Registration_Table();

}  // namespace quorvex
