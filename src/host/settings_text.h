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

/// The value; of several lines with that name, the first one's.
std::optional<std::string> Find_Setting(std::string_view contents, const Setting_Name& name);

/// The contents with the value set, all other lines as they were.
std::string With_Setting(std::string_view contents, const Setting_Name& name,
                         std::string_view value);

}  // namespace quorvex
