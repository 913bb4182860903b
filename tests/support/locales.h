// Locales for tests, and a guard that puts one in force for a scope.
#pragma once

#include <memory>
#include <utility>

#include "host/platform.h"

namespace quorvex {

/// 1,234.5 and $5
inline Locale Point_Locale() {
  return {".", ",", "$", Currency_Side::before};
}

/// 1.234,5 and 5 €
inline Locale Comma_Locale() {
  return {",", ".", " \u20AC", Currency_Side::after};
}

/// 1 234,5 with a narrow no-break space (three bytes), and 5 €
inline Locale Narrow_Space_Locale() {
  return {",", "\u202F", " \u20AC", Currency_Side::after};
}

/// 1’234.5 with a typographic apostrophe (three bytes), and CHF 5
inline Locale Apostrophe_Locale() {
  return {".", "\u2019", "CHF ", Currency_Side::before};
}

/// Puts a locale in force until the end of the scope.
class Locale_Guard {
 public:
  explicit Locale_Guard(const Locale& locale)
      : before_(std::exchange(Current_Platform().locale, Fixed_Locale(locale))) {}
  ~Locale_Guard() { Current_Platform().locale = std::move(before_); }
  Locale_Guard(const Locale_Guard&) = delete;
  Locale_Guard& operator=(const Locale_Guard&) = delete;

 private:
  std::shared_ptr<Locale_Source> before_;
};

}  // namespace quorvex
