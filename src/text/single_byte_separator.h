// Work on number text in which the decimal separator is one byte.
#pragma once

#include <string>
#include <utility>

#include "text/primitives.h"

namespace quorvex {

/// Gives `work(text, separator)`, where the text's separator is one byte. A separator of several
/// bytes is one character all the same: a stand-in, which number text never holds, takes its place
/// while characters are counted.
template <typename Work>
std::string With_Single_Byte_Separator(std::string text, Work&& work) {
  const std::string& separator = Decimal_Separator();
  if (separator.size() == 1) return work(std::move(text), separator.front());
  constexpr char stand_in = '\x1f';
  const std::size_t place = text.find(separator);
  if (place != std::string::npos) text.replace(place, separator.size(), 1, stand_in);
  text = work(std::move(text), stand_in);
  const std::size_t found = text.find(stand_in);
  if (found != std::string::npos) text.replace(found, 1, separator);
  return text;
}

}  // namespace quorvex
