// E notation of results.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// Writes plain decimal text in E notation with one digit before the separator: *1200* gives
/// *1.2E+3*, *0.0125* gives *1.25E-2*. A number with one integer digit that is not 0 and a fraction
/// stays as it is; a one-digit number keeps a bare separator (*5.E+0*). A leading "-" is kept only
/// where the text stays as it is. Zero with places gives no digit: *0.00* is *.0E-3*. Text
/// without an integer part, such as empty text, begins with two separators and ends with "E+-1".
NumberText To_Exponential(std::string_view text);

}  // namespace quorvex
