// Why a calculation gave a token, and what may surprise about a result.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "formula/expression.h"
#include "frame/catalogue.h"
#include "host/host_value.h"
#include "host/run_time_failure.h"

namespace quorvex {

/// What the calculation has failed with on its way, if it has.
using Seen_Failure = std::optional<Run_Time_Failure>;

/// Why a call gave a token or an error value: the argument that is no number, the bound that was
/// reached, or what the function says of that token. Empty if an argument is an error already: the
/// reason is where that comes from.
std::string Reason_Of_Call(cls_Quorvex& engine, const Method& method,
                           std::span<const HostValue> arguments, const HostValue& result,
                           const Seen_Failure& seen);

/// The same of an operator.
std::string Reason_Of_Operator(cls_Quorvex& engine, const HostValue& left, const HostValue& right,
                               const HostValue& result, const Seen_Failure& seen);

/// Adds a sentence for each argument that the function reads otherwise than people expect.
void Add_Surprises(cls_Quorvex& engine, const Method& method, std::span<const HostValue> arguments,
                   std::vector<std::string>& notes);

/// What to say of a whole number whose last digits were cut at the default limit; nothing if the
/// value is none.
std::optional<std::string> Note_On_Cut(const HostValue& value);

}  // namespace quorvex
