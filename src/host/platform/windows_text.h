// Text as Windows takes and gives it: UTF-16 there, UTF-8 here.
#pragma once

#include <string>
#include <string_view>

namespace quorvex {

/// What is not valid becomes U+FFFD.
std::wstring Wide_Text(std::string_view text);
std::string Narrow_Text(std::wstring_view text);

/// What an error number of the system means, as a sentence.
std::string System_Message(unsigned long error);

}  // namespace quorvex
