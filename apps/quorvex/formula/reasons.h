// Why a calculation gave a token, and what may surprise about a result.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formula/expression.h"
#include "frame/catalogue.h"
#include "host/host_value.h"
#include "host/run_time_failure.h"

namespace quorvex {

/// Whether results are explained.
enum class Explain {
  no,
  yes,
  at_prompt,  // with the prompt's own commands as advice
};

/// What the calculation has failed with on its way, if it has.
using Seen_Failure = std::optional<Run_Time_Failure>;

/// Why a call gave a token or an error value: the argument that is no number, the bound that was
/// reached, or what the function says of that token. Empty if an argument is an error already: the
/// reason is where that comes from.
std::string Reason_Of_Call(cls_Quorvex& engine, const Method& method,
                           std::span<const HostValue> arguments, const HostValue& result,
                           const Seen_Failure& seen);

/// The same of an operator, which `op` spells.
std::string Reason_Of_Operator(cls_Quorvex& engine, std::string_view op, const HostValue& left,
                               const HostValue& right, const HostValue& result,
                               const Seen_Failure& seen);

/// The first argument that is no number where one is needed, with what is wrong; empty if there is
/// none.
std::string Bad_Argument(cls_Quorvex& engine, const Method& method,
                         std::span<const HostValue> arguments);

/// Adds a sentence for each argument that the function reads otherwise than people expect.
void Add_Surprises(cls_Quorvex& engine, const Method& method, std::span<const HostValue> arguments,
                   std::vector<std::string>& notes);

/// What to say of a whole number whose last digits were cut at the default limit; nothing if the
/// value is none. Of an array, for the first such number in it.
std::optional<std::string> Note_On_Cut(const HostValue& value, Explain explain = Explain::yes);

}  // namespace quorvex
