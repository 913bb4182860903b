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

/// Tries every entry at every character.
inline std::string Extracted(std::string_view text, const std::vector<std::string>& entries) {
  const std::vector<std::string> characters = Characters(text);
  std::string extracted;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    bool found = false;
    for (const std::string& entry : entries) {
      std::string here;
      const std::size_t length = Count_Characters(entry);
      for (std::size_t j = i; j < characters.size() && j < i + length; ++j) here += characters[j];
      if (found || here != entry) continue;
      extracted += entry;
      found = true;
    }
  }
  return extracted;
}

}  // namespace quorvex::slow
