// Text that people take for a number.
#pragma once

#include <string>

namespace quorvex {

/// Whether a text looks like a number: digits with a sign, parentheses, separators, the currency
/// symbol or an exponent. The engine is not asked: looks are what counts here.
bool Looks_Like_Number(std::string text);

}  // namespace quorvex
