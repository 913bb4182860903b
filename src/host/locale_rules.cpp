// What makes a locale fit for number text, and what stands in for what isn't.
#include "host/locale_rules.h"

#include <algorithm>
#include <initializer_list>

#include "host/utf8.h"

namespace quorvex {

namespace {

// A dot would do where commas part the decimals, but then 1.5, typed by habit, would be read as 15.
constexpr std::string_view no_break_space = "\u00A0";
constexpr std::string_view narrow_no_break_space = "\u202F";

bool Is_Digit(char c) {
  return c >= '0' && c <= '9';
}

/// Characters that mean something in a number or begin an error.
bool Is_Mark(char c) {
  return std::string_view("+-()#").find(c) != std::string_view::npos;
}

bool Is_Control(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

std::string Problem_Of(std::string_view field, std::string_view what) {
  return "The " + std::string(field) + " " + std::string(what);
}

std::optional<std::string> Separator_Problem(std::string_view field, std::string_view separator) {
  if (!Is_Valid_Utf8(separator)) return Problem_Of(field, "is not valid UTF-8.");
  if (Count_Characters(separator) != 1) return Problem_Of(field, "must be exactly one character.");
  const char c = separator.front();
  if (Is_Digit(c)) return Problem_Of(field, "must not be a digit.");
  if (c == '+' || c == '-') return Problem_Of(field, "must not be a sign.");
  if (c == '(' || c == ')') return Problem_Of(field, "must not be a parenthesis.");
  if (c == '\'' || c == '"') return Problem_Of(field, "must not be a quote mark.");
  if (c == 'E' || c == 'e') return Problem_Of(field, "must not be E, which marks an exponent.");
  if (c == '#') return Problem_Of(field, "must not be #, which marks an error.");
  if (Is_Control(c)) return Problem_Of(field, "must not be a control character.");
  return std::nullopt;
}

/// The text without any of the parts, which are no empty texts.
std::string Without(std::string text, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) {
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos;)
      text.erase(at, part.size());
  }
  return text;
}

/// The separators must be sound.
std::optional<std::string> Currency_Problem(const Locale& locale) {
  const std::string_view field = "currency symbol";
  const std::string& symbol = locale.currency_symbol;
  if (symbol.empty()) return std::nullopt;
  if (!Is_Valid_Utf8(symbol)) return Problem_Of(field, "is not valid UTF-8.");
  if (std::ranges::any_of(symbol, Is_Control))
    return Problem_Of(field, "must not hold control characters.");
  // Taking such a symbol off a number would take its sign off as well.
  if (std::ranges::any_of(symbol, Is_Mark))
    return Problem_Of(field, "must not hold a sign, a parenthesis or #.");
  const std::string rest = Without(symbol, {locale.decimal_separator, locale.thousands_separator,
                                            no_break_space, narrow_no_break_space});
  if (rest.find_first_not_of("0123456789eE'\" ") == std::string::npos)
    return Problem_Of(field, "must not be made up only of what numbers are made of.");
  return std::nullopt;
}

/// The separators must be sound by themselves.
std::optional<std::string> Pair_Problem(const Locale& locale) {
  const std::string_view decimal = locale.decimal_separator;
  if (decimal == locale.thousands_separator)
    return "The decimal separator and the thousands separator must not be alike.";
  // Blanks around a number mean nothing, so one at its end must not be part of it.
  if (decimal == " " || decimal == no_break_space || decimal == narrow_no_break_space)
    return "The decimal separator must not be a blank.";
  return std::nullopt;
}

bool Is_Fine(const Locale& locale) {
  return !Locale_Problem(locale);
}

}  // namespace

std::optional<std::string> Locale_Problem(const Locale& locale) {
  if (auto problem = Separator_Problem("decimal separator", locale.decimal_separator))
    return problem;
  if (auto problem = Separator_Problem("thousands separator", locale.thousands_separator))
    return problem;
  if (auto problem = Pair_Problem(locale)) return problem;
  return Currency_Problem(locale);
}

Locale Usable_Locale(const Locale_Report& report) {
  Locale locale;
  locale.currency_symbol.clear();
  Locale trial = locale;
  trial.decimal_separator = report.decimal_separator;
  trial.thousands_separator = report.decimal_separator == "," ? "." : ",";
  if (Is_Fine(trial)) locale.decimal_separator = report.decimal_separator;
  for (const std::string& separator :
       {report.thousands_separator, report.monetary_thousands_separator,
        std::string(locale.decimal_separator == "." ? std::string_view(",") : no_break_space)}) {
    locale.thousands_separator = separator;
    if (Is_Fine(locale)) break;
  }
  Locale with_symbol = locale;
  with_symbol.currency_symbol = report.currency_symbol;
  with_symbol.currency_side = report.currency_side;
  if (!report.currency_symbol.empty() && Is_Fine(with_symbol)) return with_symbol;
  locale.currency_symbol = Locale().currency_symbol;
  if (!Is_Fine(locale)) locale.currency_symbol.clear();
  return locale;
}

}  // namespace quorvex
