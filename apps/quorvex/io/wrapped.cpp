// Running text in lines of the page's width.
#include "io/wrapped.h"

#include <algorithm>

namespace quorvex {
namespace {

constexpr std::size_t page_width = 92;

}  // namespace

std::string Wrapped(std::string_view text, std::size_t indent) {
  std::string wrapped;
  std::size_t column = indent;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (column > indent && column + 1 + word.size() > page_width) {
      wrapped += '\n' + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      wrapped += ' ';
      ++column;
    }
    wrapped += word;
    column += word.size();
  }
  return wrapped;
}

}  // namespace quorvex
