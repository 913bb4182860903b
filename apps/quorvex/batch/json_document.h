// Reads one line of JSON with the strictness that a protocol needs.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quorvex {

/// Why a line is no good request, as a sentence for its sender.
class Invalid_Request : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Levels of arrays and objects that a line may nest. Values are walked by recursion, so that this
/// keeps the stack safe from hostile input.
inline constexpr std::size_t maximum_json_depth = 64;

/// Parses a line into `root`. The value of the top level's "id" goes to `id` instead, as JSON text,
/// so that it returns to the sender with every digit and in the order in which it came. A number
/// that a 64-bit float doesn't give back in its shortest form goes to `root` as number text in the
/// current locale. Throws `Invalid_Request` for broken JSON, invalid UTF-8, a key given twice, and
/// for too many levels; `id` is then set if it stood before the fault.
void Parse_Json(std::string_view line, nlohmann::json& root, std::string& id);

/// A text as a JSON string, quotes included. Bytes that are no UTF-8 become replacement characters.
void Append_Json_String(std::string& out, std::string_view text);

}  // namespace quorvex
