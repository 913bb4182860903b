// Cases written with "." and "," and tried in locales that write them otherwise.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/platform.h"
#include "support/locales.h"

namespace quorvex {

/// Separators of one byte and of three, the symbol before and behind.
inline std::vector<Locale> Test_Locales() {
  return {Point_Locale(), Comma_Locale(), Narrow_Space_Locale(), Apostrophe_Locale()};
}

/// The text with the separators and the currency symbol of the locale in force for "." "," "$".
inline std::string Localized(std::string_view text) {
  const Locale locale = Current_Locale();
  std::string localized;
  localized.reserve(text.size());
  for (const char character : text) {
    switch (character) {
      case '.':
        localized += locale.decimal_separator;
        break;
      case ',':
        localized += locale.thousands_separator;
        break;
      case '$':
        localized += locale.currency_symbol;
        break;
      default:
        localized += character;
    }
  }
  return localized;
}

/// Runs `body` once in each of the test locales.
template <typename Body>
void In_Each_Locale(const Body& body) {
  for (const Locale& locale : Test_Locales()) {
    const Locale_Guard guard(locale);
    body();
  }
}

}  // namespace quorvex
