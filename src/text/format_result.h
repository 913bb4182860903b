// Where every result becomes the text of a cell.
#pragma once

#include <cstddef>
#include <string_view>

#include "host/host_value.h"
#include "text/decimal.h"
#include "text/options.h"

namespace quorvex {

/// Formats digits with a place.
///
/// The result is cut to `maxSD` plus one significant digits, half up by the first dropped digit;
/// trailing zeros of the fraction go; then grouping, fixed places, E notation, currency and sign
/// are applied. The sign of a zero is dropped only while its text is "0": rounded to fixed places
/// or with a currency symbol it stays. Text that is empty or holds "#" comes back as it is.
///
/// Gives "#VALUE!" for a limit that leaves no digits, "#NUM!" for a result longer than the ceiling
/// unless `noLengthChecks`. Fails with type_mismatch or overflow for
/// a `FormatDecimalPlace` that is no 32-bit number, and with type_mismatch when a carry of rounding
/// to fixed places runs into a thousands separator.
NumberText Format_Result(Decimal number, const type_Restrictionator& options, bool noLengthChecks);

/// Makes digits that no limit cuts the same text where no option asks for anything: with so many of
/// them behind the separator.
void Write_Unformatted(NumberText& digits, std::size_t places, bool negative);

/// The worker of `qvxFORMAT`: `Clean_Up_Number`, then `Format_Result` with the limit as given.
NumberText Format_Number(std::string_view number, const Format_Arguments& arguments);

}  // namespace quorvex
