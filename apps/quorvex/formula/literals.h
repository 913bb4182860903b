// Numbers and error values as people type them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// Bytes of the number (digits with at most one separator, then perhaps an exponent) that a text
/// begins with; 0 if it begins with none.
std::size_t Number_Length(std::string_view text, std::string_view separator);

/// How a float has to give a number back to stand for it: at 15 digits, which is what cells show of
/// it, or in its shortest form, as programs write their floats.
enum class Given_Back { at_15_digits, in_shortest_form };

/// The value of a number that `Number_Length` took whole, with a minus sign before it or not: a
/// number if a 64-bit float gives it back unchanged, else number text in the current locale that
/// the engine reads.
HostValue Number_Value(std::string_view number, bool negative, std::string_view separator,
                       Given_Back given_back = Given_Back::at_15_digits);

/// #N/A and its like.
std::string_view Error_Text(Error_Code error);
/// The error literal that a text begins with, in any case of letters.
std::optional<Error_Code> Leading_Error(std::string_view text);

/// True for a text by which functions tell of an error: #VALUE! and its like, and those that a few
/// functions spell without the "#".
bool Is_Token(std::string_view text);

/// True for an error value, and for a text that is a token.
bool Is_Error(const HostValue& value);

/// The same word but for the case of the letters A to Z.
bool Same_Word(std::string_view one, std::string_view other);

}  // namespace quorvex
