// The text of a settings file.
#include "host/settings_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "host/utf8.h"

namespace quorvex {

namespace {

constexpr std::string_view blanks = " \t\r";

bool Is_Plain(char c, std::string_view special) {
  return static_cast<unsigned char>(c) >= ' ' && c != '\x7F' && c != '%' &&
         special.find(c) == std::string_view::npos;
}

void Append_Escaped(std::string& text, char c) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  text += {'%', digits[byte >> 4U], digits[byte & 0xFU]};
}

std::string Escaped_Part(std::string_view part) {
  std::string text;
  // Before the first line it would be passed over.
  if (part.starts_with(byte_order_mark)) {
    Append_Escaped(text, part.front());
    part.remove_prefix(1);
  }
  for (const char c : part) Is_Plain(c, " /=#") ? void(text += c) : Append_Escaped(text, c);
  return text;
}

/// Blanks at the ends are escaped, so that an editor may add or cut some there.
std::string Escaped_Value(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const bool at_end = i == 0 || i + 1 == value.size();
    Is_Plain(value[i], at_end ? " " : "") ? void(text += value[i]) : Append_Escaped(text, value[i]);
  }
  return text;
}

std::optional<std::string> Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      plain += text[i];
      continue;
    }
    const std::string_view digits = text.substr(i + 1, 2);
    unsigned byte = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, byte, 16);
    if (digits.size() != 2 || result.ptr != end) return std::nullopt;
    plain += static_cast<char>(byte);
    i += 2;
  }
  return plain;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes off the first line, its line end with it.
std::string_view Take_Line(std::string_view& contents) {
  const std::size_t end = std::min(contents.find('\n'), contents.size() - 1);
  const std::string_view line = contents.substr(0, end + 1);
  contents.remove_prefix(line.size());
  return line;
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Same_Name(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

/// A line with the three parts of its name, unescaped.
struct Written_Setting {
  std::array<std::string, 3> name;
  std::string_view value;  // as it is written
};

bool Is_Comment(std::string_view line) {
  return Trimmed(line).starts_with('#');
}

std::optional<Written_Setting> Setting_In(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || Is_Comment(line)) return std::nullopt;
  Written_Setting setting;
  std::string_view left = Trimmed(line.substr(0, equals));
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t end = i < 2 ? left.find('/') : left.size();
    if (end == std::string_view::npos) return std::nullopt;
    auto part = Unescaped(left.substr(0, end));
    if (!part || left.substr(0, end).find('/') != std::string_view::npos) return std::nullopt;
    setting.name[i] = std::move(*part);
    left.remove_prefix(std::min(end + 1, left.size()));
  }
  setting.value = Trimmed(line.substr(equals + 1));
  return setting;
}

/// The value as it is written; nothing if the line isn't that setting.
std::optional<std::string_view> Written_Value(std::string_view line, const Setting_Name& name) {
  const auto setting = Setting_In(line);
  if (!setting || !Same_Name(setting->name[0], name.application) ||
      !Same_Name(setting->name[1], name.section) || !Same_Name(setting->name[2], name.key))
    return std::nullopt;
  return setting->value;
}

/// Takes off the mark before the first line.
std::string_view Take_Mark(std::string_view& contents) {
  const std::size_t length = contents.starts_with(byte_order_mark) ? byte_order_mark.size() : 0;
  const std::string_view mark = contents.substr(0, length);
  contents.remove_prefix(length);
  return mark;
}

std::string Setting_Line(const Setting_Name& name, std::string_view value) {
  return Escaped_Part(name.application) + '/' + Escaped_Part(name.section) + '/' +
         Escaped_Part(name.key) + " = " + Escaped_Value(value) + '\n';
}

}  // namespace

std::optional<std::string> Find_Setting(std::string_view contents, const Setting_Name& name) {
  Take_Mark(contents);
  while (!contents.empty()) {
    const auto written = Written_Value(Take_Line(contents), name);
    if (written) return Unescaped(*written).value_or(std::string(*written));
  }
  return std::nullopt;
}

bool Holds_No_Setting(std::string_view contents) {
  Take_Mark(contents);
  bool has_text = false;
  while (!contents.empty()) {
    std::string_view line = Take_Line(contents);
    if (Setting_In(line)) return false;
    if (line.ends_with('\n')) line.remove_suffix(1);
    has_text = has_text || !(Trimmed(line).empty() || Is_Comment(line));
  }
  return has_text;
}

std::string With_Setting(std::string_view contents, const Setting_Name& name,
                         std::string_view value) {
  std::string result(Take_Mark(contents));
  bool set = false;
  while (!contents.empty()) {
    const std::string_view line = Take_Line(contents);
    const bool mine = Written_Value(line, name).has_value();
    if (!mine) result += line;
    if (!mine && !line.ends_with('\n')) result += '\n';
    if (mine && !set) result += Setting_Line(name, value);
    set = set || mine;
  }
  if (!set) result += Setting_Line(name, value);
  return result;
}

}  // namespace quorvex
