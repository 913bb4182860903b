// Values of the golden cases as values of automation, and back.
#pragma once

#include <nlohmann/json.hpp>

#include "com.h"

namespace quorvex::windows {

/// Keeps the order of fields, which is part of an answer.
using Json = nlohmann::ordered_json;

/// The caller clears it.
VARIANT Variant_Of(const Json& value);
Json Json_Of(const VARIANT& value);

}  // namespace quorvex::windows
