// What a function reads otherwise than people expect, as far as it can be seen at the call.
#include <string_view>

#include "formula/literals.h"
#include "formula/misreading.h"
#include "formula/reasons.h"

namespace quorvex {

namespace {

bool Is_Number(const HostValue& value, double number) {
  return value.kind() == HostValue::Kind::number && value.number() == number;
}

bool Is_Below_Zero(cls_Quorvex& engine, const HostValue& value) {
  const bool is_single = value.is_text() || value.kind() == HostValue::Kind::number;
  if (!is_single || !engine.qvxISNUMBER(value)) return false;
  const HostValue answer = engine.qvxISLESS(value, 0);
  return answer.is_text() && answer.text() == "True";
}

bool Is_Switch(const Parameter& parameter) {
  return parameter.name == "format_thousands" || parameter.name == "format_currency" ||
         parameter.name == "exponential_notation";
}

std::string_view Surprise_Of_Option(const Parameter& parameter, const HostValue& argument) {
  if (!parameter.optional || argument.is_missing()) return {};
  if (Is_Switch(parameter) && Is_Number(argument, 1))
    return "it is on when it is TRUE; 1 does not turn it on";
  if (parameter.name == "format_negative" && Is_Number(argument, 0))
    return "0 hides the sign, also from the next formula";
  if (parameter.name == "preserve_decimal_place")
    return "it has no effect; format_decimal_place keeps zeros at the end";
  return {};
}

std::string_view Surprise_Of_Function(cls_Quorvex& engine, const Method& method,
                                      std::span<const HostValue> arguments) {
  if (arguments.empty()) return {};
  if (method.name == "qvxNEG" && Is_Below_Zero(engine, arguments[0]))
    return "it makes every number negative; qvxCHANGESIGN turns the sign round";
  const bool counts_places = method.name == "qvxROUND" || method.name == "qvxTRUNC";
  if (counts_places && arguments.size() > 1 && Is_Below_Zero(engine, arguments[1]))
    return "a negative count of places acts one place short: -2 is for tens";
  const bool is_any_hash = method.name == "qvxISERROR" && arguments[0].is_text() &&
                           arguments[0].text().find('#') != std::string::npos &&
                           !Is_Token(arguments[0].text());
  if (is_any_hash) return "it calls any text with a # an error";
  return {};
}

}  // namespace

void Add_Surprises(cls_Quorvex& engine, const Method& method, std::span<const HostValue> arguments,
                   std::vector<std::string>& notes) {
  const std::string name(method.name);
  const std::string_view of_function = Surprise_Of_Function(engine, method, arguments);
  if (!of_function.empty()) Add_Note(name + ": " + std::string(of_function) + ".", notes);
  if (method.takes_all_as_list) {
    if (arguments.empty()) return;
    Add_Misreading(engine, "", arguments[0], notes);
    Add_Passed_Over(engine, name, arguments[0], notes);
    return;
  }
  for (std::size_t at = 0; at < arguments.size() && at < method.parameters.size(); ++at) {
    const Parameter& parameter = method.parameters[at];
    const HostValue& argument = arguments[at];
    const std::string place = std::string(parameter.name) + " of " + name + ": ";
    const std::string_view option = Surprise_Of_Option(parameter, argument);
    if (!option.empty()) Add_Note(place + std::string(option) + ".", notes);
    Add_Misreading(engine, place, argument, notes);
  }
}

}  // namespace quorvex
