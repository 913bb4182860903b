// The check that every digit routine makes of operands which have not been read as numbers before.
#pragma once

#include <string_view>

namespace quorvex {

/// Fails with type_mismatch if the text holds a character that is no digit.
void Require_Digits(std::string_view text);

}  // namespace quorvex
