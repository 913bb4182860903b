#include "text/options.h"

#include <atomic>

#include "host/conversions.h"

namespace quorvex {
namespace {

constexpr double factory_default = 100;
// Calculations may run while it is set.
std::atomic<double> default_max_sd = factory_default;

std::int16_t Negative_Style(const HostValue& value) {
  if (value.is_missing()) return 1;
  const double style = To_Number(value);
  if (style == 0) return 0;
  return style == 2 ? 2 : 1;
}

bool Is_Chosen(const HostValue& value) {
  return !value.is_missing() && Equals_True(value);
}

double Digits(const HostValue& value) {
  if (value.is_missing()) return default_max_sd;
  const double digits = To_Number(value);
  return digits <= maximum_digits ? digits : maximum_digits;
}

}  // namespace

double Default_MaxSD() noexcept {
  return default_max_sd;
}

void Set_Default_MaxSD(double digits) noexcept {
  default_max_sd = digits;
}

type_Restrictionator Restrictionator(const Format_Arguments& arguments) {
  type_Restrictionator options;
  options.FormatNegative = Negative_Style(arguments.format_negative);
  options.FormatThousands = Is_Chosen(arguments.format_thousands);
  options.FormatCurrency = Is_Chosen(arguments.format_currency);
  options.ExponentialNotation = Is_Chosen(arguments.exponential_notation);
  options.maxSD = Digits(arguments.maximum_significant_digits);
  if (!arguments.format_decimal_place.is_missing()) {
    options.FormatDecimalPlace = arguments.format_decimal_place;
  }
  options.PreserveTrailingZerosAfterDecimal = Is_Chosen(arguments.preserve_decimal_place);
  if (options.ExponentialNotation) options.FormatThousands = false;
  return options;
}

}  // namespace quorvex
