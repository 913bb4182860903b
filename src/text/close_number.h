// The step that every function of one number ends with.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/decimal.h"
#include "text/options.h"

namespace quorvex {

/// Formats a number. It is cut to the limit of the call and one digit more; fixed places have no
/// part in it. Tokens come back as they are, but an option that can't be read fails with
/// type_mismatch for them too.
NumberText Close_Number(Decimal number, const Format_Arguments& format);

/// The same without a cut: whatever the default limit, all digits stay.
NumberText Close_In_Full(Decimal number, const Format_Arguments& format);

/// `Close_Number` of a number as text, with its sign and separator.
NumberText Close_Text(std::string_view number, const Format_Arguments& format);

}  // namespace quorvex
