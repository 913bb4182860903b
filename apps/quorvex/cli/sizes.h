// Sizes of memory and of texts, as users give them.
#pragma once

#include <optional>
#include <string>

namespace quorvex {

/// Bytes of a number, with K, M, G or T behind it or not; nothing for what is no size.
std::optional<double> Bytes_Of(const std::string& size);

/// What is wrong with a size; empty if nothing is.
std::string Check_Size(const std::string& text);

}  // namespace quorvex
