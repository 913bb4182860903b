// Places in UTF-8 text, beyond what the engine itself needs to know of characters.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvex {

/// The byte at which a text ceases to be UTF-8; nothing if all of it is.
std::optional<std::size_t> First_Bad_Byte(std::string_view text);

/// Bytes taken by the first `characters` of a text, or by all of it if it has fewer.
std::size_t Bytes_Of_Characters(std::string_view text, std::size_t characters);

}  // namespace quorvex
