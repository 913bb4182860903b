// Lines typed in answer to a question.
#pragma once

#include <optional>
#include <string>

namespace quorvex {

/// The next line of standard input; nothing at its end and when the user breaks off, be it before
/// the wait begins. Reads no further than the line: others read the same input.
std::optional<std::string> Typed_Line();

}  // namespace quorvex
