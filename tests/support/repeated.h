// Long texts of one part.
#pragma once

#include <cstddef>
#include <string>

namespace quorvex {

inline std::string Repeated(const std::string& part, std::size_t count) {
  std::string text;
  text.reserve(count * part.size());
  for (; count > 0; --count) text += part;
  return text;
}

}  // namespace quorvex
