// Running text in lines of the page's width.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex {

/// The text, broken at blanks; lines after the first begin with `indent` blanks.
std::string Wrapped(std::string_view text, std::size_t indent = 0);

}  // namespace quorvex
