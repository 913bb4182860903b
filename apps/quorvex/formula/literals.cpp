#include "formula/literals.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "host/platform.h"

namespace quorvex {

namespace {

constexpr std::array<std::pair<Error_Code, std::string_view>, 7> error_texts{{
    {Error_Code::null, "#NULL!"},
    {Error_Code::division_by_zero, "#DIV/0!"},
    {Error_Code::value, "#VALUE!"},
    {Error_Code::reference, "#REF!"},
    {Error_Code::name, "#NAME?"},
    {Error_Code::number, "#NUM!"},
    {Error_Code::not_available, "#N/A"},
}};

// The digits that a 64-bit float always keeps, and the most that its shortest form has.
constexpr int kept_digits = 15;
constexpr std::size_t most_digits = 17;

char Capital(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::size_t Digits_At(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && text[end] >= '0' && text[end] <= '9') ++end;
  return end - at;
}

struct Spelling {
  std::string_view whole;
  std::string_view fraction;
  bool has_separator = false;
  std::string_view exponent;  // its digits; empty for none
  bool exponent_negative = false;
  std::size_t length = 0;
};

void Read_Exponent(std::string_view text, Spelling& spelling) {
  std::size_t at = spelling.length;
  if (at >= text.size() || Capital(text[at]) != 'E') return;
  ++at;
  const bool is_signed = at < text.size() && (text[at] == '+' || text[at] == '-');
  const bool negative = is_signed && text[at] == '-';
  if (is_signed) ++at;
  const std::size_t digits = Digits_At(text, at);
  if (digits == 0) return;
  spelling.exponent = text.substr(at, digits);
  spelling.exponent_negative = negative;
  spelling.length = at + digits;
}

Spelling Spelling_Of(std::string_view text, std::string_view separator) {
  Spelling spelling;
  spelling.whole = text.substr(0, Digits_At(text, 0));
  spelling.length = spelling.whole.size();
  if (text.substr(spelling.length).starts_with(separator)) {
    const std::size_t at = spelling.length + separator.size();
    spelling.fraction = text.substr(at, Digits_At(text, at));
    spelling.has_separator = true;
    spelling.length = at + spelling.fraction.size();
  }
  if (spelling.whole.empty() && spelling.fraction.empty()) return {};
  Read_Exponent(text, spelling);
  return spelling;
}

// A number as d.ddd times a power of ten. Leading zeros are gone; zero has no digits.
struct Scientific {
  std::string digits;
  std::int64_t exponent = 0;
  bool exponent_known = true;
};

Scientific Scientific_Of(const Spelling& spelling) {
  Scientific number;
  number.digits.reserve(spelling.whole.size() + spelling.fraction.size());
  number.digits.append(spelling.whole).append(spelling.fraction);
  const std::size_t zeros = std::min(number.digits.find_first_not_of('0'), number.digits.size());
  number.digits.erase(0, zeros);
  const std::string_view exponent = spelling.exponent;
  std::int64_t written = 0;
  if (!exponent.empty()) {
    const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), written);
    number.exponent_known = read.ec == std::errc() && written < std::int64_t{1} << 60U;
  }
  if (!number.exponent_known) return number;
  if (spelling.exponent_negative) written = -written;
  number.exponent = written + static_cast<std::int64_t>(spelling.whole.size()) -
                    static_cast<std::int64_t>(zeros) - 1;
  return number;
}

std::string Exponent_Text(std::int64_t exponent) {
  return (exponent < 0 ? "E-" : "E+") + std::to_string(exponent < 0 ? -exponent : exponent);
}

std::string Scientific_Text(std::string_view digits, std::int64_t exponent,
                            std::string_view separator) {
  std::string text(digits.substr(0, 1));
  if (digits.size() > 1) text.append(separator).append(digits.substr(1));
  return text + Exponent_Text(exponent);
}

std::string_view Without_Trailing_Zeros(std::string_view digits) {
  return digits.substr(0, digits.find_last_not_of('0') + 1);
}

// The digits of a float, without trailing zeros.
std::string Digits_Of(double value, Given_Back form) {
  std::array<char, 32> buffer{};
  char* const begin = buffer.data();
  char* const end = begin + buffer.size();
  const auto written =
      form == Given_Back::in_shortest_form
          ? std::to_chars(begin, end, value, std::chars_format::scientific)
          : std::to_chars(begin, end, value, std::chars_format::scientific, kept_digits - 1);
  std::string digits(begin, std::find(begin, written.ptr, 'e'));
  std::erase(digits, '.');
  return std::string(Without_Trailing_Zeros(digits));
}

// The float that stands for the number, if it gives the number back in that form.
std::optional<double> Exact_Float(const Scientific& number, Given_Back form) {
  if (number.digits.empty()) return 0.0;
  const std::string_view digits = Without_Trailing_Zeros(number.digits);
  if (digits.size() > most_digits || !number.exponent_known) return std::nullopt;
  const std::string typed = Scientific_Text(digits, number.exponent, ".");
  double value = 0;
  const auto read = std::from_chars(typed.data(), typed.data() + typed.size(), value);
  if (read.ec != std::errc() || !std::isfinite(value)) return std::nullopt;
  if (Digits_Of(value, form) != digits) return std::nullopt;
  return value;
}

std::string Kept_Text(const Spelling& spelling, const Scientific& number) {
  const std::string& separator = Current_Separators().decimal();
  if (!spelling.exponent.empty() && number.exponent_known) {
    return Scientific_Text(number.digits, number.exponent, separator);
  }
  std::string text;
  text.reserve(spelling.length + separator.size());
  text.append(spelling.whole);
  if (spelling.has_separator) text.append(separator).append(spelling.fraction);
  if (!spelling.exponent.empty()) {
    text.append(spelling.exponent_negative ? "E-" : "E+").append(spelling.exponent);
  }
  return text;
}

}  // namespace

std::size_t Number_Length(std::string_view text, std::string_view separator) {
  return Spelling_Of(text, separator).length;
}

HostValue Number_Value(std::string_view number, bool negative, std::string_view separator,
                       Given_Back given_back) {
  const Spelling spelling = Spelling_Of(number, separator);
  const Scientific scientific = Scientific_Of(spelling);
  if (const auto value = Exact_Float(scientific, given_back)) {
    // A zero has no sign: -0 would show it again.
    return negative && *value != 0 ? -*value : *value;
  }
  std::string text = Kept_Text(spelling, scientific);
  if (negative) text.insert(0, 1, '-');
  return {std::move(text)};
}

std::string_view Error_Text(Error_Code error) {
  for (const auto& [code, text] : error_texts) {
    if (code == error) return text;
  }
  return "#VALUE!";
}

std::optional<Error_Code> Leading_Error(std::string_view text) {
  for (const auto& [code, spelling] : error_texts) {
    if (Same_Word(text.substr(0, spelling.size()), spelling)) return code;
  }
  return std::nullopt;
}

bool Is_Token(std::string_view text) {
  constexpr std::array<std::string_view, 7> tokens = {"#VALUE!", "#NUM!",  "#DIV/0!", "#EXPR!",
                                                      "VALUE!",  "DIV/0!", "NUM!"};
  return text.ends_with('!') && std::find(tokens.begin(), tokens.end(), text) != tokens.end();
}

bool Is_Error(const HostValue& value) {
  return value.kind() == HostValue::Kind::error || (value.is_text() && Is_Token(value.text()));
}

bool Same_Word(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char left, char right) { return Capital(left) == Capital(right); });
}

}  // namespace quorvex
