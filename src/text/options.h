// The formatting options of a call, resolved from its optional arguments.
#pragma once

#include <cstdint>

#include "host/export.h"
#include "host/host_value.h"

namespace quorvex {

/// The ceiling for significant digits and for the length of a result.
inline constexpr double maximum_digits = 2147483648.0;

/// The resolved formatting options of one call.
struct type_Restrictionator {
  std::int16_t FormatNegative = 1;        // 0: no sign at all, 1: leading minus, 2: parentheses
  bool FormatThousands = false;           // group the integer digits
  bool FormatCurrency = false;            // attach the locale's currency symbol
  bool ExponentialNotation = false;       // write E notation
  double maxSD = 0;                       // maximum significant digits, maximum_digits at most
  bool InsertFunctionDialog = true;       // always true
  bool IncluderExcluderFunctions = true;  // always true
  HostValue FormatDecimalPlace;           // the argument unchanged, missing if missing
  bool PreserveTrailingZerosAfterDecimal = false;
};

/// The optional formatting arguments of a call, as they came. Holds references: it lives no longer
/// than the call.
struct Format_Arguments {
  const HostValue& format_negative = Missing;
  const HostValue& format_thousands = Missing;
  const HostValue& format_currency = Missing;
  const HostValue& exponential_notation = Missing;
  const HostValue& maximum_significant_digits = Missing;
  const HostValue& format_decimal_place = Missing;
  const HostValue& preserve_decimal_place = Missing;
};

/// The maximum significant digits of a call that gives none; one for the process.
QUORVEX_API double Default_MaxSD() noexcept;
QUORVEX_API void Set_Default_MaxSD(double digits) noexcept;

/// Resolves the formatting arguments.
///
/// `format_negative` gives 0 or 2 for these values and 1 for any other or none. The booleans are
/// true only for what equals boolean true (the number 1 does not). The digits are taken as they
/// stand up to the ceiling, `Default_MaxSD` where missing. E notation switches grouping off.
/// Fails with type_mismatch for an option that can't be read.
type_Restrictionator Restrictionator(const Format_Arguments& arguments);

}  // namespace quorvex
