// What the formulas of the documentation give.
#pragma once

#include <string>
#include <string_view>

#include "frame/cls_Quorvex.h"

namespace quorvex {

/// Calculates a formula with "." as the decimal separator, "," between thousands, "$" before an
/// amount and 100 digits, whatever the settings are. Gives lines as the tool prints them; a call
/// that fails is "error: " and the reason. Throws `Syntax_Error` for what is no formula.
std::string Example_Result(cls_Quorvex& engine, std::string_view formula);

}  // namespace quorvex
