#include "formula/reasons.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "formula/literals.h"
#include "formula/number_problem.h"
#include "formula/render.h"
#include "host/failure_watch.h"
#include "host/platform.h"
#include "text/options.h"

namespace quorvex {

namespace {

bool Is_Any_Error(std::span<const HostValue> values) {
  return std::any_of(values.begin(), values.end(), [](const HostValue& value) {
    return Is_Error(value) || (value.kind() == HostValue::Kind::range && Is_Single_Cell(value) &&
                               Is_Error(value.range().cell(1, 1)));
  });
}

std::string Place_Of(const Method& method, const Parameter& parameter) {
  return std::string(parameter.name) + " of " + std::string(method.name) + ": ";
}

// Options are words and truth values; what must be a number stands among the required arguments.
std::string Problem_Of_Argument(cls_Quorvex& engine, const Parameter& parameter,
                                const HostValue& argument) {
  if (argument.is_text()) return Number_Problem(engine, argument);
  if (parameter.optional) return {};
  switch (argument.kind()) {
    case HostValue::Kind::boolean:
      return Render(argument) + " is no number.";
    case HostValue::Kind::array:
      return "several values stand where one is needed.";
    case HostValue::Kind::range:
      if (Is_Single_Cell(argument))
        return Problem_Of_Argument(engine, parameter, argument.range().cell(1, 1));
      return "several cells stand where one is needed.";
    default:
      return {};
  }
}

std::string Token_Of(const HostValue& result) {
  return result.is_text() ? result.text() : Render(result);
}

// What the reference says of the token.
std::string Documented(const Method& method, const std::string& token) {
  for (const std::string_view sentence : method.results.failures) {
    if (sentence.find("\"" + token + "\"") == std::string_view::npos) continue;
    const bool asks_for_digits = sentence.find("without MSD=") != std::string_view::npos;
    return std::string(method.name) + ": " + std::string(sentence) +
           (asks_for_digits ? " Give \"format:MSD=50\" as the last argument." : "");
  }
  return {};
}

bool Is_Division_By_Zero(const std::string& token) {
  return token.ends_with("DIV/0!");
}

std::string Bound_Reached(const Seen_Failure& seen) {
  return seen && Is_Bound(seen->number()) ? seen->what() : std::string();
}

}  // namespace

std::string Bad_Argument(cls_Quorvex& engine, const Method& method,
                         std::span<const HostValue> arguments) {
  if (method.takes_all_as_list) return {};
  for (std::size_t at = 0; at < arguments.size() && at < method.parameters.size(); ++at) {
    const Parameter& parameter = method.parameters[at];
    if (parameter.kind == Parameter_Kind::list) continue;
    const std::string problem = Problem_Of_Argument(engine, parameter, arguments[at]);
    if (!problem.empty()) return Place_Of(method, parameter) + problem;
  }
  return {};
}

std::string Reason_Of_Call(cls_Quorvex& engine, const Method& method,
                           std::span<const HostValue> arguments, const HostValue& result,
                           const Seen_Failure& seen) {
  const std::string bound = Bound_Reached(seen);
  if (!bound.empty()) return std::string(method.name) + ": " + bound;
  if (Is_Any_Error(arguments)) return {};
  std::string reason = Bad_Argument(engine, method, arguments);
  if (!reason.empty()) return reason;
  const std::string token = Token_Of(result);
  if (Is_Division_By_Zero(token)) return std::string(method.name) + " divides by 0.";
  reason = Documented(method, token);
  if (!reason.empty()) return reason;
  if (seen) return std::string(method.name) + ": " + seen->what();
  return std::string(method.name) + " gives " + token + " for these arguments.";
}

std::string Reason_Of_Operator(cls_Quorvex& engine, std::string_view op, const HostValue& left,
                               const HostValue& right, const HostValue& result,
                               const Seen_Failure& seen) {
  std::string reason = Bound_Reached(seen);
  if (!reason.empty()) return reason;
  for (const HostValue* operand : {&left, &right}) {
    if (operand->is_text()) reason = Number_Problem(engine, *operand);
    if (!reason.empty()) return reason;
  }
  const std::string token = Token_Of(result);
  if (Is_Division_By_Zero(token)) return "The divisor is 0.";
  if (seen) return seen->what();
  if (op == "^" && token == "#NUM!")
    return "A number below 0 has no power with a fraction; qvxROOT takes roots of odd degree.";
  return "The operator " + std::string(op) + " gives " + token + " for these numbers.";
}

std::optional<std::string> Note_On_Cut(const HostValue& value, Explain explain) {
  if (value.kind() == HostValue::Kind::array) {
    for (const HostValue& each : value.array().values) {
      if (auto note = Note_On_Cut(each, explain)) return note;
    }
    return std::nullopt;
  }
  if (!value.is_text()) return std::nullopt;
  std::string_view digits = value.text();
  if (digits.starts_with('-')) digits.remove_prefix(1);
  // A result has up to two digits more than its limit.
  const double limit = Default_MaxSD() + 2;
  if (static_cast<double>(digits.size()) <= limit) return std::nullopt;
  if (digits.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  const std::size_t shown = digits.find_last_not_of('0') + 1;
  // What was cut leaves about as many digits as the limit. A power of ten leaves fewer.
  constexpr double zeros_by_chance = 20;
  if (static_cast<double>(shown) > limit || static_cast<double>(shown) < limit - zeros_by_chance)
    return std::nullopt;
  return "The result has " + std::to_string(digits.size()) + " digits, and zeros stand for those " +
         "behind the first " + std::to_string(shown) + ": ask for more with " +
         (explain == Explain::at_prompt ? "digits " : "--digits ") + std::to_string(digits.size()) +
         ".";
}

}  // namespace quorvex
