#include "arith/operation/scaled_number.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Beyond the length of any text, and safe to add to.
constexpr std::int64_t farthest = 1'000'000'000'000'000;

void Strip_Zeros(Scaled_Number& number) {
  const std::size_t zeros = Count_Trailing_Zeros(number.digits);
  number.digits.resize(number.digits.size() - zeros);
  number.exponent += static_cast<std::int64_t>(zeros);
}

// Adds one to the last digit. Nines become zeros, which are cut off.
void Count_Up(Scaled_Number& number) {
  const std::size_t last = number.digits.find_last_not_of('9');
  const std::size_t kept = last == NumberText::npos ? 0 : last + 1;
  number.exponent += static_cast<std::int64_t>(number.digits.size() - kept);
  number.digits.resize(kept);
  if (kept == 0) {
    number.digits = "1";
  } else {
    ++number.digits.back();
  }
}

// A number that no text can hold is a token, or is beyond memory with its zeros behind the
// separator.
void Check_Size(Scaled_Number& number) {
  if (number.exponent > farthest) number = Scaled_Token(num_token);
  if (number.exponent < -farthest) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A number has too many decimals.");
  }
}

}  // namespace

Scaled_Number Scaled_Token(std::string_view token) {
  Scaled_Number number;
  number.token = token;
  return number;
}

Scaled_Number Scaled(bool negative, const Decimal_Parts& parts) {
  Scaled_Number number;
  number.negative = negative;
  std::string_view integer = parts.integer;
  std::string_view fraction = parts.fraction;
  integer.remove_prefix(Count_Leading_Zeros(integer));
  number.exponent = -static_cast<std::int64_t>(fraction.size());
  if (integer.empty()) fraction.remove_prefix(Count_Leading_Zeros(fraction));
  if (integer.empty() && fraction.empty()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A factor of a power is 0.");
  }
  number.digits.reserve(integer.size() + fraction.size());
  number.digits.append(integer).append(fraction);
  Strip_Zeros(number);
  return number;
}

Scaled_Number Scaled(std::string_view text) {
  if (const auto token = Token_Of(text)) return Scaled_Token(*token);
  const Operand operand(text);
  return Scaled(!operand.positive(), operand.parts());
}

Scaled_Number Product(const Scaled_Number& a, const Scaled_Number& b, double limit) {
  if (a.is_token()) return a;
  if (b.is_token()) return b;
  Yield();
  Scaled_Number product;
  product.digits = Multiply_Digits(a.digits, b.digits);
  if (product.digits.front() == token_mark) return Scaled_Token(value_token);
  product.negative = a.negative != b.negative;
  product.exponent = a.exponent + b.exponent;
  Strip_Zeros(product);
  Round(product, limit + 2);
  Check_Size(product);
  return product;
}

void Round(Scaled_Number& number, double count) {
  if (number.is_token() || static_cast<double>(number.digits.size()) <= count) return;
  const double kept_count = Nearest(count);
  if (kept_count < 1) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
  }
  const auto kept = static_cast<std::size_t>(kept_count);
  if (number.digits.size() <= kept) return;
  const bool up = number.digits[kept] >= '5';
  number.exponent += static_cast<std::int64_t>(number.digits.size() - kept);
  number.digits.resize(kept);
  if (up) {
    Count_Up(number);
  } else {
    Strip_Zeros(number);
  }
}

std::int64_t Plain_Length(const Scaled_Number& number) {
  const auto digits = static_cast<std::int64_t>(number.digits.size());
  const std::int64_t sign = number.negative ? 1 : 0;
  if (number.exponent >= 0) return sign + digits + number.exponent;
  // At least one digit stands before the separator.
  return sign + std::max(digits, 1 - number.exponent);
}

NumberText Plain_Text(const Scaled_Number& number) {
  if (number.is_token()) return NumberText(number.token);
  Require_Memory(texts_at_once * static_cast<double>(Plain_Length(number)));
  NumberText text = number.digits;
  if (number.exponent >= 0) {
    text.append(static_cast<std::size_t>(number.exponent), '0');
  } else {
    const auto decimals = static_cast<std::size_t>(-number.exponent);
    if (text.size() <= decimals) text.insert(0, decimals + 1 - text.size(), '0');
    text.insert(text.size() - decimals, Decimal_Separator());
  }
  if (number.negative) text.insert(0, 1, '-');
  return text;
}

}  // namespace quorvex
