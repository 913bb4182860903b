// A number as its own digits with a place: what arithmetic gives, before it is written.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

struct type_CleanUp;

/// `digits`, read as a whole number, times ten to the `power_of_ten`. The zeros of huge and tiny
/// numbers are a count, and not written: the significant digits of 2 to the 1000000000 are a
/// hundred, and its text has 300 million.
///
/// In the place of digits may stand what is no number: an error token, or text that formatting
/// passes on. It has no sign and no place.
struct Decimal {
  NumberText digits;
  std::int64_t power_of_ten = 0;
  bool negative = false;

  /// True if a mark begins the digits, which only a token's does: digits are no text of users.
  bool is_token() const;
};

/// The text in the place of digits.
Decimal Decimal_Token(std::string_view token);

/// Number text with its sign and its separator taken out. Whatever else it holds stays.
Decimal Read_Decimal(NumberText text);

/// The same for text without a sign: one that it has all the same stays.
Decimal Read_Magnitude(NumberText text);

/// A number in normal form without its separator, or the token that clean-up gave.
Decimal Read_Decimal(type_CleanUp clean);

/// The digits of a number without the zeros at both ends, "0" for 0.
Decimal Significant_Digits(bool negative, const Decimal_Parts& parts);

/// The same for a plain number as arithmetic gives it. A token stays.
Decimal Significant_Digits(std::string_view text);

/// Takes the zeros at both ends off, and counts those behind; "0" for 0.
void Strip_Zeros(Decimal& number);

/// True if no zeros stand at either end, but for "0" itself. Tokens have none.
bool Is_Stripped(const Decimal& number);

// Of stripped numbers.

/// Rounds to so many significant digits, half up in magnitude by the first dropped digit. Fails
/// with invalid_call for a count that leaves none. Tokens stay.
void Round(Decimal& number, double count);

/// The digits of the number written out, and its sign as one: the length of its text without the
/// separator.
std::int64_t Plain_Length(const Decimal& number);

/// The number written out, or the token. Fails with out_of_memory where there is no room.
NumberText Plain_Text(const Decimal& number);

}  // namespace quorvex
