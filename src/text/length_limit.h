// The length that a result may have, and the currency symbol that takes its part of it.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The length of a cell's text as routines name it; it stands for the ceiling of two to the 31st.
inline constexpr double longest_cell_text = 32767;

/// Cuts a text to a length, in place. `maxLen` counts down from 32767, which stands for the
/// ceiling: 32766 leaves one character less than the ceiling, and so on. Digits are rounded half up
/// and an exponent is kept. It becomes "#VALUE!" where the integer part alone is too long, and for
/// any failure.
void Limit_Text_Length(NumberText& text, double maxLen);

/// Cuts a text to leave room for the locale's currency symbol, and puts it before or behind.
void Add_Currency_Symbol(NumberText& text);

}  // namespace quorvex
