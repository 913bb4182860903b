// Texts of users as messages show them.
#pragma once

#include <string>
#include <string_view>

namespace quorvex {

/// The text in double quotes, cut if it is long; what can't be shown becomes a question mark.
std::string Shown_Text(std::string_view text);

}  // namespace quorvex
