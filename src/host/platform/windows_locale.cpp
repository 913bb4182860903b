// The locales of Windows.
#include <algorithm>

#include "host/locale_rules.h"
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"

namespace quorvex {

namespace {

/// A null name stands for the user's own locale, with what the user has changed in it.
std::wstring Told(const wchar_t* name, LCTYPE what) {
  wchar_t buffer[16];
  const int units = ::GetLocaleInfoEx(name, what, buffer, 16);
  return units > 1 ? std::wstring(buffer, static_cast<std::size_t>(units) - 1) : std::wstring();
}

/// A separator is one character, whatever stands behind it.
std::string First_Character(const std::wstring& text) {
  const bool is_pair = text.size() > 1 && IS_SURROGATE_PAIR(text[0], text[1]);
  return Narrow_Text(text.substr(0, is_pair ? 2 : 1));
}

/// What an amount of money has beside its number: the symbol, with the blank between the two.
void Read_Money(Locale_Report& report, const wchar_t* name) {
  wchar_t buffer[64];
  const int units = ::GetCurrencyFormatEx(name, 0, L"0", nullptr, buffer, 64);
  if (units <= 1) return;
  std::wstring text(buffer, static_cast<std::size_t>(units) - 1);
  std::size_t begin = text.find(L'0');
  const std::size_t end = text.rfind(L'0') + 1;
  if (begin == std::wstring::npos) return;
  // Users may do without the zero before the decimals.
  const std::wstring separator = Told(name, LOCALE_SMONDECIMALSEP);
  if (!separator.empty() && std::wstring_view(text).substr(0, begin).ends_with(separator))
    begin -= separator.size();
  text.erase(begin, end - begin);
  report.currency_symbol = Narrow_Text(text);
  report.currency_side = begin > 0 ? Currency_Side::before : Currency_Side::after;
}

Locale_Report Report_Of(const wchar_t* name) {
  Locale_Report report;
  report.decimal_separator = First_Character(Told(name, LOCALE_SDECIMAL));
  report.thousands_separator = First_Character(Told(name, LOCALE_STHOUSAND));
  report.monetary_thousands_separator = First_Character(Told(name, LOCALE_SMONTHOUSANDSEP));
  return report;
}

class Told_Anew final : public Locale_Source {
 public:
  Separators separators() override {
    const Locale locale = Usable_Locale(Report_Of(LOCALE_NAME_USER_DEFAULT));
    return {locale.decimal_separator, locale.thousands_separator};
  }

  // The separators come along, since a symbol must go together with them.
  Currency currency() override {
    Locale_Report report = Report_Of(LOCALE_NAME_USER_DEFAULT);
    Read_Money(report, LOCALE_NAME_USER_DEFAULT);
    const Locale locale = Usable_Locale(report);
    return {locale.currency_symbol, locale.currency_side};
  }
};

/// The system's name for a locale that may be written as elsewhere: de_CH.UTF-8 is de-CH.
std::wstring System_Name(std::string_view name) {
  std::wstring wide = Wide_Text(name.substr(0, name.find_first_of(".@")));
  std::ranges::replace(wide, L'_', L'-');
  return wide;
}

}  // namespace

std::shared_ptr<Locale_Source> User_Locale() {
  return std::make_shared<Told_Anew>();
}

std::optional<Locale> System_Locale(std::string_view name) {
  if (name.find('\0') != std::string_view::npos) return std::nullopt;
  const std::wstring wide = System_Name(name);
  if (wide == L"C" || wide == L"POSIX") return Locale();
  // An empty name would mean the neutral locale.
  if (wide.empty() || ::IsValidLocaleName(wide.c_str()) == 0) return std::nullopt;
  Locale_Report report = Report_Of(wide.c_str());
  Read_Money(report, wide.c_str());
  return Usable_Locale(report);
}

}  // namespace quorvex
