// Host values as JSON and back.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The value that a JSON value of a parsed line stands for; texts are moved out of it. Throws
/// `Invalid_Request`, whose message begins with `place`, for what stands for none.
HostValue Value_From_Json(nlohmann::json&& json, std::string_view place);

/// Appends a value as JSON. A number reads back as the same 64-bit float; a range is written as the
/// array of its values. Throws `Run_Time_Failure` overflow for a number that is not finite.
void Append_Json(std::string& out, const HostValue& value);

}  // namespace quorvex
