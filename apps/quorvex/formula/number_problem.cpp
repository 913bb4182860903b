#include "formula/number_problem.h"

#include <string_view>

#include "formula/literals.h"
#include "formula/utf8.h"
#include "host/platform.h"

namespace quorvex {

namespace {

bool Has(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// True for 1e5, 1E5 and 1e+5.
bool Has_Exponent(std::string_view text) {
  const std::size_t at = text.find_first_of("eE");
  if (at == 0 || at == std::string_view::npos || at + 1 == text.size()) return false;
  return text.find_first_not_of("0123456789.,+-()") == at &&
         text.find_first_not_of("0123456789+-()", at + 1) == std::string_view::npos;
}

// Digits with the marks that are separators in one locale or another.
bool Has_Other_Separators(std::string_view text) {
  return text.find_first_not_of("0123456789.,'-()") == std::string_view::npos &&
         text.find_first_of("0123456789") != std::string_view::npos;
}

// True for E notation as it is read, like -1.5E+3.
bool Is_Good_Exponent(std::string_view text) {
  const std::size_t e = text.find('E');
  const std::string_view separator = Current_Separators().decimal();
  if (e == std::string_view::npos || e + 2 >= text.size()) return false;
  const std::string_view before = text.substr(text.starts_with('-') ? 1 : 0);
  const bool has_one_digit =
      before.substr(1).starts_with('E') || before.substr(1).starts_with(separator);
  return has_one_digit && (text[e + 1] == '+' || text[e + 1] == '-');
}

std::string Cause(std::string_view text) {
  if (Has(text, "%")) return "percent signs are not read.";
  if (text.starts_with('+')) return "a plus in front is not read.";
  if (Has(text, " ") || Has(text, "\xC2\xA0") || Has(text, "\t")) return "blanks are not read.";
  if (Has_Exponent(text)) {
    if (Is_Good_Exponent(text)) return "it has more digits than a number may have.";
    return "E stands in capitals, with a sign behind it and one digit before the separator, as in "
           "1.5E+3.";
  }
  if (Has_Other_Separators(text)) {
    const Separators separators = Current_Separators();
    return "the decimal separator is \"" + separators.decimal() + "\" here, and \"" +
           separators.thousands() + "\" stands between thousands.";
  }
  return {};
}

}  // namespace

std::string Shortly(const std::string& text) {
  constexpr std::size_t enough = 40;
  const std::size_t bytes = Bytes_Of_Characters(text, enough);
  return "\"" + text.substr(0, bytes) + (bytes < text.size() ? "\u2026\"" : "\"");
}

std::string Number_Problem(cls_Quorvex& engine, const HostValue& text) {
  const bool is_word = Same_Word(text.text(), "TRUE") || Same_Word(text.text(), "FALSE");
  if (is_word || engine.qvxISNUMBER(text)) return {};
  if (text.text().empty()) return "an empty text is no number.";
  const std::string cause = Cause(text.text());
  return Shortly(text.text()) + " is no number" + (cause.empty() ? "." : ": " + cause);
}

}  // namespace quorvex
