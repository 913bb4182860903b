// The size of the terminal that the output goes to.
#pragma once

#include <cstddef>
#include <optional>

namespace quorvex {

/// Characters in a line of the terminal; nothing where the output is none.
std::optional<std::size_t> Terminal_Width();

}  // namespace quorvex
