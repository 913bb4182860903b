// What the host's function dialog is told.
#pragma once

#include <string_view>
#include <vector>

namespace quorvex {

/// A macro of the add-in workbook, as the host's function dialog shows it.
struct Registration {
  std::string_view macro;
  std::string_view description;
  std::string_view category;
  int place = 0;  // as in the catalogue's row
};

/// All macros, in the order in which they are registered: by category, place and name. Those that
/// are methods of the class are named and described as the catalogue says.
std::vector<Registration> Registration_Table();

}  // namespace quorvex
