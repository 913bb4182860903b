// The text of a settings file: one setting a line, application/section/key = value.
//
// Bytes that would be taken for something else are written %XX. Lines that aren't settings
// (comments, what other versions wrote, damage) are kept and otherwise ignored.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvex {

struct Setting_Name {
  std::string_view application;
  std::string_view section;
  std::string_view key;
};

/// The value; of several lines with that name, the first one's. Names are compared without regard
/// to case, since users write them by hand. A value whose escapes are broken counts as it is
/// written, so that whoever reads it can say what is wrong with it.
std::optional<std::string> Find_Setting(std::string_view contents, const Setting_Name& name);

/// Whether there is text besides comments, but not one setting: a damaged or mistaken file.
bool Holds_No_Setting(std::string_view contents);

/// The contents with the value set, all other lines as they were.
std::string With_Setting(std::string_view contents, const Setting_Name& name,
                         std::string_view value);

}  // namespace quorvex
