#include "text/decimal.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "expects.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/digit_runs.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Positions count from the right end, the separator itself counted; 0 and 1 both mean none.
std::int64_t Power_By_Position(double position) {
  return position > 1 ? 1 - static_cast<std::int64_t>(position) : 0;
}

// Adds one to the last digit. Nines become zeros, which are cut off.
void Count_Up(Decimal& number) {
  const std::size_t last = number.digits.find_last_not_of('9');
  const std::size_t kept = last == NumberText::npos ? 0 : last + 1;
  number.power_of_ten += static_cast<std::int64_t>(number.digits.size() - kept);
  number.digits.resize(kept);
  if (kept == 0) {
    number.digits = "1";
  } else {
    ++number.digits.back();
  }
}

}  // namespace

bool Decimal::is_token() const {
  return digits.starts_with(token_mark);
}

Decimal Decimal_Token(std::string_view token) {
  return {NumberText(token)};
}

Decimal Read_Decimal(NumberText text) {
  const bool negative = !Is_Positive(text);
  if (text.starts_with('-')) text.erase(0, 1);
  Decimal number = Read_Magnitude(std::move(text));
  number.negative = negative;
  return number;
}

Decimal Read_Magnitude(NumberText text) {
  const std::int64_t power = Power_By_Position(Decimal_Position_Of(text));
  Remove_Decimal_Separator(text);
  return {std::move(text), power};
}

Decimal Read_Decimal(type_CleanUp clean) {
  return {std::move(clean.NumClean), Power_By_Position(clean.DecPos),
          !clean.Positive && !clean.IsError};
}

Decimal Significant_Digits(bool negative, const Decimal_Parts& parts) {
  std::string_view integer = parts.integer;
  std::string_view fraction = parts.fraction;
  integer.remove_prefix(Count_Leading_Zeros(integer));
  Decimal number{{}, -static_cast<std::int64_t>(fraction.size()), negative};
  if (integer.empty()) fraction.remove_prefix(Count_Leading_Zeros(fraction));
  number.digits.reserve(integer.size() + fraction.size());
  number.digits.append(integer).append(fraction);
  Strip_Zeros(number);
  return number;
}

Decimal Significant_Digits(std::string_view text) {
  if (const auto token = Token_Of(text)) return Decimal_Token(*token);
  const Operand operand(text);
  return Significant_Digits(!operand.positive(), operand.parts());
}

void Strip_Zeros(Decimal& number) {
  const std::size_t zeros = Count_Trailing_Zeros(number.digits);
  number.digits.resize(number.digits.size() - zeros);
  number.power_of_ten += static_cast<std::int64_t>(zeros);
  if (number.digits.starts_with('0')) number.digits.erase(0, Count_Leading_Zeros(number.digits));
  if (number.digits.empty()) number = {"0"};
}

bool Is_Stripped(const Decimal& number) {
  return number.digits == "0" || !(number.digits.starts_with('0') || number.digits.ends_with('0'));
}

void Round(Decimal& number, double count) {
  Expects(Is_Stripped(number));
  if (number.is_token() || static_cast<double>(number.digits.size()) <= count) return;
  const double kept_count = Nearest(count);
  if (kept_count < 1) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
  }
  const auto kept = static_cast<std::size_t>(kept_count);
  if (number.digits.size() <= kept) return;
  const bool up = number.digits[kept] >= '5';
  number.power_of_ten += static_cast<std::int64_t>(number.digits.size() - kept);
  number.digits.resize(kept);
  if (up) {
    Count_Up(number);
  } else {
    Strip_Zeros(number);
  }
}

std::int64_t Plain_Length(const Decimal& number) {
  Expects(Is_Stripped(number));
  const auto digits = static_cast<std::int64_t>(number.digits.size());
  const std::int64_t sign = number.negative ? 1 : 0;
  if (number.power_of_ten >= 0) return sign + digits + number.power_of_ten;
  // At least one digit stands before the separator.
  return sign + std::max(digits, 1 - number.power_of_ten);
}

NumberText Plain_Text(const Decimal& number) {
  Expects(Is_Stripped(number));
  if (number.is_token()) return number.digits;
  Require_Memory(texts_at_once * static_cast<double>(Plain_Length(number)));
  NumberText text = number.digits;
  if (number.power_of_ten >= 0) {
    text.append(static_cast<std::size_t>(number.power_of_ten), '0');
  } else {
    const auto decimals = static_cast<std::size_t>(-number.power_of_ten);
    if (text.size() <= decimals) text.insert(0, decimals + 1 - text.size(), '0');
    text.insert(text.size() - decimals, Decimal_Separator());
  }
  if (number.negative) text.insert(0, 1, '-');
  return text;
}

}  // namespace quorvex
