// The small routines that look at number text and trim it.
//
// A text position counts characters; digits and signs are one byte each, and a separator is one
// character of one or more bytes. None of these routines has a handler.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/host_value.h"
#include "host/locale_of_call.h"

namespace quorvex {

/// The locale's currency symbol. `Position` is 1 before the number and 2 behind it.
struct type_Currency_Symbol {
  std::string Symbol;
  std::int16_t Position = 1;
};

inline const std::string& Decimal_Separator() {
  return Locale_Of_Call::separators().decimal();
}
inline const std::string& Thousands_Separator() {
  return Locale_Of_Call::separators().thousands();
}
type_Currency_Symbol Get_Currency_Symbol();

/// Text is positive unless it begins with "-" or "(": *-0* is not, empty text is.
bool Is_Positive(std::string_view text);
inline bool Is_Positive(const std::string& text) {
  return Is_Positive(std::string_view(text));
}
/// Text by its first character; any other value if its number is 0 or more.
bool Is_Positive(const HostValue& value);

/// The text without its leading "-", or, if it begins with "(", without its first and its last
/// character, whatever the last one is.
std::string_view Strip_Sign(std::string_view text);

/// Drops zeros and thousands separators at the left of a text that is positive, and puts a "0"
/// before a leading decimal separator. Empty text becomes "0".
void Strip_Leading_Zeros(std::string& text);

/// Drops zeros at the right end of a text that has a decimal separator, and a separator that then
/// stands last. A separator that stands first gets a "0" before it.
void Strip_Trailing_Zeros(std::string& text);

/// Takes the first decimal separator out.
void Remove_Decimal_Separator(std::string& text);

/// True if a text holds the decimal separator more than once.
bool Has_Two_Separators(std::string_view text);

/// The text left of the decimal separator, sign and all; "0" if nothing stands there. The whole
/// text if it has no separator.
std::string_view Integer_Part_Text(std::string_view text);

/// Takes the currency symbol out wherever it stands, upper and lower case being different.
void Remove_Currency_Symbol(std::string& text);

/// Takes the thousands separators out wherever they stand.
void Remove_Thousands_Separators(std::string& text);

/// Groups the digits of an integer part by threes: *1234567* gives *1,234,567*.
std::string Insert_Thousands_Separators(std::string_view text);

/// The decimal position of a text: the place of its separator counted from the right end, the
/// separator itself counted; 0 if it has none.
double Decimal_Position_Of(std::string_view text);

}  // namespace quorvex
