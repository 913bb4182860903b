// Text extraction as plainly as it can be told, to compare with.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/utf8.h"

namespace quorvex::slow {

inline std::vector<std::string> Characters(std::string_view text) {
  std::vector<std::string> characters;
  while (!text.empty()) {
    characters.emplace_back(text.substr(0, First_Character_Bytes(text)));
    text.remove_prefix(characters.back().size());
  }
  return characters;
}

/// Deletes the first occurrence, over and over.
inline std::string Without(std::string text, const std::string& entry) {
  for (std::size_t at = text.find(entry); at != std::string::npos; at = text.find(entry)) {
    text = text.substr(0, at) + text.substr(at + entry.size());
  }
  return text;
}

/// The number filter with its flags as a list of what each kind of character does.
class Filter {
 public:
  explicit Filter(std::string separator) : separator_(std::move(separator)) {}

  std::string result;

  void take(const std::string& c) {
    bool kept = false;
    const int code = c.size() > 1 ? 256 : static_cast<unsigned char>(c[0]);
    if (code < 48) {
      if (c == separator_) {
        if (!decimal) {
          kept = started = decimal = true;
          closed = false;
          if (may_begin) {
            armed = true;
            pending = false;
          }
        }
      } else if (c == "-") {
        if (!started) {
          open = closed = false;
          started = kept = true;
        }
        if (pending) exponent("E-");
      } else if (c == "(") {
        if (!started) open = true;
      } else if (c == ")") {
        if (open) closed = true;
      } else if (c == "+") {
        if (may_begin && pending) exponent("E+");
      }
    } else if (code <= 57) {
      pending = closed = false;
      kept = started = true;
      if (may_begin) {
        if (!first) {
          first = armed = true;
        } else if (!decimal) {
          may_begin = armed = pending = false;
        }
      }
    } else if (armed && c == "E" && !pending && !done) {
      pending = true;
    }
    if (kept) result += c;
  }

  void finish() {
    std::vector<std::string> all = Characters(result);
    if (!all.empty() && all.back() == "E") all.pop_back();
    if (all.size() > 1 && all[all.size() - 2] == "E") all.resize(all.size() - 2);
    result = closed ? "-" : "";
    for (const std::string& each : all) result += each;
  }

 private:
  void exponent(const char* text) {
    result += text;
    done = true;
    may_begin = armed = first = pending = false;
  }

  std::string separator_;
  bool started = false;
  bool decimal = false;
  bool open = false;
  bool closed = false;
  bool may_begin = true;
  bool first = false;
  bool armed = false;
  bool pending = false;
  bool done = false;
};

inline std::string Filtered(std::string_view text, const std::string& separator) {
  Filter filter(separator);
  for (const std::string& character : Characters(text)) filter.take(character);
  filter.finish();
  return filter.result;
}

/// Tries every entry at every character.
inline std::string Extracted(std::string_view text, const std::vector<std::string>& entries,
                             bool with_filter, const std::string& separator) {
  const std::vector<std::string> characters = Characters(text);
  Filter filter(separator);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    bool found = false;
    for (const std::string& entry : entries) {
      std::string here;
      const std::size_t length = Count_Characters(entry);
      for (std::size_t j = i; j < characters.size() && j < i + length; ++j) here += characters[j];
      if (found || here != entry) continue;
      filter.result += entry;
      found = true;
    }
    if (with_filter && !found) filter.take(characters[i]);
  }
  if (with_filter) filter.finish();
  return filter.result;
}

}  // namespace quorvex::slow
