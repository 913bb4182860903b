// Text of others as a terminal may be shown it.
#pragma once

#include <string>
#include <string_view>

namespace quorvex {

/// The text with a sign for every character that would command the terminal, break a line, change
/// the direction of what stands around it or not be seen at all, and for every byte that is no
/// character: cells, names of files and messages can't disguise what they hold. The characters in
/// `kept` stay.
std::string Visible(std::string_view text, std::string_view kept = {});

/// The same where the text goes to a terminal: lines and tabs stay. Files and other programs get
/// every byte as it is.
std::string For_Output(std::string text, bool is_terminal);

}  // namespace quorvex
