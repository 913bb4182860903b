#include "text/clean_up_number.h"

#include <string>
#include <utility>

#include "host/run_time_failure.h"
#include "text/digit_runs.h"
#include "text/expand_exponent.h"
#include "text/primitives.h"
#include "text/quotes.h"
#include "text/round_to_length.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// One more than the longest number that a cell can show: rounding to it changes no shorter text.
constexpr double longest_number = 2147483649.0;

type_CleanUp Error_Record(std::string_view token) {
  type_CleanUp record;
  record.NumClean = token;
  record.IsError = true;
  return record;
}

// Cuts the digits to length. Zeros at the left don't count as digits, and are part of the value.
void Limit_Digits(std::string& digits) {
  const std::size_t before = digits.size();
  Strip_Leading_Zeros(digits);
  const std::size_t zeros = before - digits.size();
  digits = Round_To_Length(std::move(digits), longest_number);
  digits.insert(0, zeros, '0');
}

type_CleanUp Clean_Up(std::string_view num, bool keepDecimal, bool keepSign) {
  std::string text(Strip_All_Quotes(num));
  Remove_Currency_Symbol(text);
  Remove_Thousands_Separators(text);
  text = Expand_Exponent(text);

  type_CleanUp record;
  record.Positive = Is_Positive(text);
  text = std::string(Strip_Sign(text));
  Strip_Leading_Zeros(text);
  Strip_Trailing_Zeros(text);
  if (text == "0") record.Positive = true;
  record.DecPos = Decimal_Position_Of(text);

  Remove_Decimal_Separator(text);
  Limit_Digits(text);
  if (Has_Non_Digit(text)) return Error_Record(num_token);
  if (keepDecimal && record.DecPos != 0) {
    text.insert(text.size() - static_cast<std::size_t>(record.DecPos) + 1, Decimal_Separator());
  }
  if (keepSign && !record.Positive) {
    text.insert(0, 1, '-');
    record.DecPos += 1;
  }
  record.NumClean = std::move(text);
  return record;
}

}  // namespace

type_CleanUp Clean_Up_Number(std::string_view num, bool keepDecimal, bool keepSign) {
  if (const auto token = Token_Of(num)) return Error_Record(*token);
  if (Has_Two_Separators(num)) return Error_Record(num_token);
  return With_Handler([&] { return Clean_Up(num, keepDecimal, keepSign); },
                      [](const Run_Time_Failure&) { return Error_Record(value_token); });
}

}  // namespace quorvex
