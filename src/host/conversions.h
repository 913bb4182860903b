// Conversions between the kinds of host values. Everything that turns one kind into another
// comes here, so that text, numbers and booleans mean the same all over the system.
//
// Every routine fails with a `Run_Time_Failure`: type_mismatch where the value has no such form,
// overflow where it is out of range.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/export.h"
#include "host/host_value.h"

namespace quorvex {

/// A number as the host writes it: 15 significant digits at most, no trailing zeros, the locale's
/// decimal separator. Plain decimals for sizes below 1E15, and below 1 when 15 decimals are
/// enough; otherwise d.dddE+XX or d.dddE-XX. Fails with overflow for infinities and NaN.
QUORVEX_API NumberText Number_To_Text(double number);

/// Any value as text. Booleans give "True" and "False", blank gives empty text, an error value
/// "Error " and its code. Missing, lists and arrays have no text.
QUORVEX_API std::string To_Text(const HostValue& value);

/// As `To_Text`, but copies nothing when the value is text: the view then looks into the value,
/// and otherwise into `scratch`.
inline std::string_view Text_Of(const HostValue& value, std::string& scratch) {
  if (value.is_text()) return value.text();
  return scratch = To_Text(value);
}

/// Text as a 64-bit float: a plain or E-form decimal in the locale's separators, with blanks around
/// it, thousands separators, a currency symbol, and parentheses for a negative. Too large a number
/// fails with overflow, too small a one is 0.
QUORVEX_API double Text_To_Number(std::string_view text);

/// Any value as a 64-bit float: true is -1, false and blank are 0.
QUORVEX_API double To_Number(const HostValue& value);

/// The value of the cell that a range of one cell reads as. A cell that is a range in turn has
/// none.
QUORVEX_API HostValue Cell_Of(const HostValue& range);

/// To the nearest whole number, halves to the even one, whatever way the processor rounds.
QUORVEX_API double Nearest(double number);

/// To the nearest whole number, halves to the even one.
QUORVEX_API std::int16_t To_Int16(const HostValue& value);
QUORVEX_API std::int32_t To_Int32(const HostValue& value);

/// A boolean as itself, a number unless it is 0, the words true and false in any case, other text
/// by its number.
QUORVEX_API bool To_Boolean(const HostValue& value);

/// Whether a value equals boolean true, as options are tested: a boolean as itself, a number only
/// if it is -1, the words true and false in any case, other text by its number.
QUORVEX_API bool Equals_True(const HostValue& value);

/// Text in capitals, for letters of any script.
QUORVEX_API std::string To_Capitals(std::string_view text);

}  // namespace quorvex
