// The decimals of the constants, which the build works out (generate.cpp beside this file).
#pragma once

#include <string_view>

namespace quorvex::digits {

/// 32,766 decimals of pi and e, the last one rounded.
extern const std::string_view pi;
extern const std::string_view e;

/// 40,050 decimals of the natural logarithm of 2 and 41,000 of that of 10, cut.
extern const std::string_view ln2;
extern const std::string_view ln10;

}  // namespace quorvex::digits
