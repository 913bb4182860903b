// The categories of a host's function dialog.
#pragma once

#include <array>
#include <string_view>

namespace quorvex::catalogue {

inline constexpr std::string_view operators = "High-Precision Operators";
inline constexpr std::string_view math = "High-Precision Math";
inline constexpr std::string_view text_functions = "High-Precision Text";
inline constexpr std::string_view statistical = "High-Precision Statistical";
inline constexpr std::string_view information = "High-Precision Information";
inline constexpr std::string_view add_in_information = "Quorvex Add-In Information";
inline constexpr std::string_view miscellaneous = "High-Precision Miscellaneous";
inline constexpr std::string_view more_information = "High-Precision - More Info";

/// In the order in which a host is told of their functions.
inline constexpr std::array categories = {
    operators,          math,          text_functions,  statistical, information,
    add_in_information, miscellaneous, more_information};

}  // namespace quorvex::catalogue
