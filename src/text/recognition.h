// What text counts as a number.
#pragma once

#include <string_view>

namespace quorvex {

/// True if addition would accept the text as an operand: digits with at most one decimal separator;
/// a leading minus or parentheses; thousands separators and currency symbol anywhere; E notation
/// (upper case, with a sign after E); matching quote marks around. Empty text, "-", "()", a lone
/// separator and a lone currency symbol are no numbers.
bool Is_Number_Text(std::string_view text);

/// True for the few texts that are no numbers although arithmetic would take them as 0: empty text,
/// "-", "()", a lone separator, a lone currency symbol.
bool Is_Lone_Mark(std::string_view text);

}  // namespace quorvex
