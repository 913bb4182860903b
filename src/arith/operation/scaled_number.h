// Numbers as significant digits and a power of ten, for long chains of products.
//
// As text, the intermediate values of a power drag all their zeros along: the significant digits of
// 2 to the 1000000000 are a hundred, and its text has 300 million. Here the zeros are a number.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// `digits` times ten to the `exponent`. The digits have no zeros at either end and are never
/// empty. Or an error token, which every operation hands on.
struct Scaled_Number {
  bool negative = false;
  NumberText digits;
  std::int64_t exponent = 0;
  std::string_view token;

  bool is_token() const { return !token.empty(); }
};

Scaled_Number Scaled_Token(std::string_view token);

/// A number from its sign and digits. It must not be 0: fails with type_mismatch.
Scaled_Number Scaled(bool negative, const Decimal_Parts& parts);

/// Reads a plain number or a token, as arithmetic gives them.
Scaled_Number Scaled(std::string_view text);

/// The product as `Do_Operation` gives it at the limit: rounded to two digits more.
Scaled_Number Product(const Scaled_Number& a, const Scaled_Number& b, double limit);

/// Rounded to so many significant digits, half up in magnitude by the first dropped digit. Fails
/// with invalid_call for a count that leaves none.
void Round(Scaled_Number& number, double count);

/// The digits of the number written out, and its sign as one: the length of its text without the
/// separator.
std::int64_t Plain_Length(const Scaled_Number& number);

/// The number written out, or the token. Fails with out_of_memory where there is no room.
NumberText Plain_Text(const Scaled_Number& number);

}  // namespace quorvex
