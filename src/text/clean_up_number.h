// A value reduced to the normal form of a number.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// A number in normal form: no quote marks, currency symbol, thousands separators or exponent, no
/// leading zeros before the first digit that the value needs, no trailing zeros in the fraction.
struct type_CleanUp {
  bool Positive = false;  // zero is always positive
  /// 0 without a fraction, otherwise the place of the separator from the right end, itself counted;
  /// one more where `keepSign` put a minus in front.
  double DecPos = 0;
  NumberText NumClean;  // the number, or an error token
  bool IsError = false;
};

/// Cleans `num` up. `keepDecimal` leaves the decimal separator in the text, `keepSign` a leading
/// minus. Without the separator the zeros between it and the first significant digit stay: *0.05*
/// gives *005*.
///
/// A token comes back as itself; "#NUM!" for two separators or a character that is no digit;
/// "#VALUE!" for any failure, such as an exponent that can't be read or a quote mark with no
/// partner.
type_CleanUp Clean_Up_Number(std::string_view num, bool keepDecimal, bool keepSign);

}  // namespace quorvex
