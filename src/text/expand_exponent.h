// E notation rewritten as plain decimal text.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// Number text cut into sign, mantissa and exponent.
struct Exponent_Form {
  bool negative = false;      // a leading "-", or parentheses on both sides; not part of the rest
  bool has_exponent = false;  // otherwise `mantissa` is the whole text
  bool is_token = false;      // the text holds the mark of a token, and stays as it is
  std::string mantissa;       // without separators if there is an exponent
  std::int32_t exponent = 0;  // by its value, the sign after E taken off
  bool exponent_is_positive = true;  // what follows E is not "-"
};

/// Reads the exponent. The mantissa counts as having one digit before its separator. The character
/// after E is passed over as a sign place whatever it is, so *1E5* has no exponent and fails.
/// Failures: type_mismatch for an unreadable or missing exponent or an empty mantissa, overflow for
/// one beyond 32 bits, invalid_call for a second minus sign.
Exponent_Form Read_Exponent(std::string_view text);

/// Writes the form as plain decimals. At most `zeros` zeros are written at the right end or behind
/// the separator: whether the text is a number does not depend on how many there are.
NumberText Write_Decimal(Exponent_Form form,
                         std::int64_t zeros = std::numeric_limits<std::int64_t>::max());

/// Rewrites E notation: *1.5E+3* gives *1500*, *1.5E-2* gives *0.015*. Upper case E with a sign
/// place behind it. Text in parentheses leaves with a minus sign; text without E is otherwise as it
/// was. Fails as `Read_Exponent` does, and with out_of_memory for more zeros than there is room.
NumberText Expand_Exponent(std::string_view text);

}  // namespace quorvex
