#include "text/format_result.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "expects.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/utf8.h"
#include "text/clean_up_number.h"
#include "text/decimal.h"
#include "text/digit_runs.h"
#include "text/fixed_places.h"
#include "text/guard_digits.h"
#include "text/length_limit.h"
#include "text/primitives.h"
#include "text/round_to_length.h"
#include "text/to_exponential.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr std::size_t short_enough = std::size_t{1} << 30;  // for any sign and any limit of length
constexpr std::int16_t without_sign = 0;
constexpr std::int16_t in_parentheses = 2;

// Zeros at the left don't count as significant and stay. A text that begins with the separator
// grows by its missing zero, and then nothing is put back.
void Cut_To_Significant_Digits(std::string& digits, double count) {
  if (static_cast<double>(digits.size()) <= count) return;
  const std::size_t before = digits.size();
  Strip_Leading_Zeros(digits);
  const std::size_t lost = before > digits.size() ? before - digits.size() : 0;
  digits = Round_To_Length(std::move(digits), count);
  if (!Has_Token_Mark(digits)) digits.insert(0, lost, '0');
}

void Set_Separator(std::string& digits, std::size_t places) {
  if (places == 0) return;
  if (digits.size() <= places) {
    Require_Memory(texts_at_once * static_cast<double>(places));
    digits.insert(0, places + 1 - digits.size(), '0');
  }
  digits.insert(digits.size() - places, Decimal_Separator());
}

// A separator at the end is left of no digits: the text counts as having none, and the separator as
// one more digit.
void Group_Integer_Digits(std::string& text) {
  const std::string& separator = Decimal_Separator();
  const std::size_t place = text.find(separator);
  std::string integer = text.substr(0, place);
  const bool is_last = place != std::string::npos && place + separator.size() == text.size();
  if (is_last) integer += '.';
  std::string grouped = Insert_Thousands_Separators(integer);
  if (is_last) grouped.pop_back();
  if (place != std::string::npos) grouped.append(text, place);
  text = std::move(grouped);
}

// The characters that are left for digits and separator beside the currency symbol and the sign.
double Length_Limit(const type_Restrictionator& options, bool positive) {
  double limit = maximum_digits;
  if (options.FormatCurrency) {
    limit -= static_cast<double>(Count_Characters(Current_Currency().symbol()));
  }
  return positive ? limit : limit - options.FormatNegative;
}

bool Is_Too_Long(const std::string& text, double limit) {
  // Bytes are no fewer than characters, so the exact count is for giants only.
  if (static_cast<double>(text.size()) <= limit - 1) return false;
  const std::size_t separator = text.find(Decimal_Separator());
  if (separator == std::string::npos) {
    return limit - 1 < static_cast<double>(Count_Characters(text));
  }
  const auto integer = std::string_view(text).substr(0, separator);
  return static_cast<double>(Count_Characters(integer) + 1) > limit;
}

void Show_Sign(NumberText& text, bool positive, std::int16_t style) {
  if (positive || style == without_sign) return;
  text.insert(0, 1, style == in_parentheses ? '(' : '-');
  if (style == in_parentheses) text += ')';
}

// True for digits that formatting leaves as they are, but for their separator, zeros and sign.
bool Is_Plain(const NumberText& digits, std::size_t places, const type_Restrictionator& options) {
  return !digits.empty() && static_cast<double>(digits.size()) <= Digits_Formatted(options.maxSD) &&
         digits.size() + places < short_enough && !options.FormatThousands &&
         !options.FormatCurrency && !options.ExponentialNotation &&
         options.FormatDecimalPlace.is_missing() && !Has_Non_Digit(digits);
}

// Takes off the zeros that mean nothing, and sets the separator.
void Write_Plain(NumberText& digits, std::size_t places) {
  const std::size_t behind = std::min(Count_Trailing_Zeros(digits), places);
  digits.resize(digits.size() - behind);
  places -= behind;
  if (digits.size() > places && digits.front() == '0') {
    digits.erase(0, std::min(Count_Leading_Zeros(digits), digits.size() - places));
  }
  if (digits.empty()) {
    digits = "0";
  } else if (digits.size() <= places) {
    Require_Memory(texts_at_once * static_cast<double>(places));
    NumberText front("0");
    front.append(Decimal_Separator()).append(places - digits.size(), '0');
    digits.insert(0, front);
  } else if (places > 0) {
    digits.insert(digits.size() - places, Decimal_Separator());
  }
}

// Writes the zeros that stand before the separator. The count of digits behind it.
std::size_t Write_Zeros(Decimal& number) {
  if (number.power_of_ten <= 0) return static_cast<std::size_t>(-number.power_of_ten);
  Require_Memory(texts_at_once * static_cast<double>(number.power_of_ten));
  number.digits.append(static_cast<std::size_t>(number.power_of_ten), '0');
  return 0;
}

void Apply_Sign(NumberText& text, bool positive, std::int16_t style, bool noLengthChecks) {
  const bool shows_none = positive || text == "0";
  if (!shows_none && style == without_sign) return;
  const double room = longest_cell_text - (shows_none ? 0 : style);
  if (!noLengthChecks) Limit_Text_Length(text, room);
  if (!shows_none) Show_Sign(text, positive, style);
}

}  // namespace

NumberText Format_Result(Decimal number, const type_Restrictionator& options, bool noLengthChecks) {
  const std::size_t decimals = Write_Zeros(number);
  const bool positive = !number.negative;
  NumberText& result = number.digits;
  if (Is_Plain(result, decimals, options)) {
    Write_Plain(result, decimals);
    Show_Sign(result, positive || result == "0", options.FormatNegative);
    return std::move(result);
  }
  const std::optional<std::int32_t> places = Fixed_Places(options.FormatDecimalPlace);
  if (result.empty() || Has_Token_Mark(result)) return std::move(result);

  Cut_To_Significant_Digits(result, Digits_Formatted(options.maxSD));
  if (result.starts_with(token_mark)) return std::move(result);
  Set_Separator(result, decimals);
  Strip_Trailing_Zeros(result);
  Strip_Leading_Zeros(result);
  if (options.FormatThousands && !options.ExponentialNotation) Group_Integer_Digits(result);
  if (places) Set_Fixed_Places(result, *places);
  if (!noLengthChecks && Is_Too_Long(result, Length_Limit(options, positive))) {
    return NumberText(num_token);
  }
  if (options.ExponentialNotation) result = To_Exponential(result);
  if (options.FormatCurrency) Add_Currency_Symbol(result);
  Apply_Sign(result, positive, options.FormatNegative, noLengthChecks);
  return std::move(result);
}

void Write_Unformatted(NumberText& digits, std::size_t places, bool negative) {
  Expects(!digits.empty() && !Has_Non_Digit(digits));
  Write_Plain(digits, places);
  if (negative && digits != "0") digits.insert(0, 1, '-');
}

NumberText Format_Number(std::string_view number, const Format_Arguments& arguments) {
  return Format_Result(Read_Decimal(Clean_Up_Number(number, false, false)),
                       Restrictionator(arguments), false);
}

}  // namespace quorvex
