// What makes a locale fit for number text, and what stands in for what isn't.
#pragma once

#include <string>

#include "host/export.h"
#include "host/platform.h"

namespace quorvex {

/// What a system tells of a locale, in UTF-8; empty where it tells nothing.
struct Locale_Report {
  std::string decimal_separator;
  std::string thousands_separator;
  std::string monetary_thousands_separator;
  std::string currency_symbol;
  Currency_Side currency_side = Currency_Side::before;
};

/// The locale that a report gives, with defaults for what it lacks or what can't be used.
QUORVEX_API Locale Usable_Locale(const Locale_Report& report);

}  // namespace quorvex
