// Quote marks around number text.
#pragma once

#include <string_view>

namespace quorvex {

/// Takes matching apostrophes and double quote marks off, layer by layer, until a pass takes
/// nothing. A quote mark with no partner at the other end stays.
std::string_view Strip_Quotes(std::string_view text);

/// As `Strip_Quotes`, for text in which a quote mark with no partner has no meaning at all: fails
/// with too_complex where such a mark is left at the start, since no pass would ever take it off.
std::string_view Strip_All_Quotes(std::string_view text);

}  // namespace quorvex
