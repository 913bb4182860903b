// One request of the batch protocol.
#include "batch/request.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "batch/json_document.h"
#include "batch/value_codec.h"
#include "formula/find_function.h"

namespace quorvex {
namespace {

using nlohmann::json;

// Keeps a message readable when the sender's text in it is very long.
std::string Quoted(std::string_view text) {
  constexpr std::size_t enough = 60;
  if (text.size() <= enough) return "\"" + std::string(text) + "\"";
  return "\"" + std::string(text.substr(0, enough)) + "...\"";
}

std::string Counted(std::size_t count, std::string_view noun) {
  return std::to_string(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

std::string Unknown_Function(std::string_view name) {
  const auto nearest = Nearest_Function(name, Functions::all);
  return "there is no function " + Quoted(name) +
         (nearest ? "; did you mean " + std::string(*nearest) + "?" : "");
}

const Method& Called_Method(const json& root) {
  const auto call = root.find("call");
  if (call == root.end()) throw Invalid_Request("the key \"call\" is missing");
  if (!call->is_string()) throw Invalid_Request("\"call\" has to be the name of a function");
  const auto& name = call->get_ref<const std::string&>();
  const Method* method = Find_Method(name);
  if (method == nullptr) throw Invalid_Request(Unknown_Function(name));
  return *method;
}

constexpr std::string_view list_form = "{\"list\": [value, ...]}";

bool Is_List(const Parameter& parameter) {
  return parameter.kind == Parameter_Kind::list;
}

void Check_List(const Parameter& parameter, const HostValue& value) {
  const auto kind = value.kind();
  if (!Is_List(parameter)) return;
  if (kind == HostValue::Kind::list || kind == HostValue::Kind::missing) return;
  throw Invalid_Request(std::string(parameter.name) + ": this takes " + std::string(list_form));
}

// Who gives too many arguments to what takes a list has probably given its elements one by one.
[[noreturn]] void Refuse_Count(const Method& method, std::size_t given) {
  const auto& parameters = method.parameters;
  std::string message = std::string(method.name) + " takes at most " +
                        Counted(parameters.size(), "argument") + ", and " + std::to_string(given) +
                        " are given";
  const auto list = std::ranges::find_if(parameters, Is_List);
  if (list != parameters.end())
    message += ": " + std::string(list->name) + " is one, " + std::string(list_form);
  throw Invalid_Request(message);
}

void Take_Positional(json& values, Request& request) {
  if (!values.is_array()) throw Invalid_Request("\"args\" has to be an array of values");
  const auto& parameters = request.method->parameters;
  if (values.size() > parameters.size()) Refuse_Count(*request.method, values.size());
  request.arguments.reserve(parameters.size());
  for (json& value : values) {
    const Parameter& parameter = parameters[request.arguments.size()];
    request.arguments.push_back(Value_From_Json(std::move(value), parameter.name));
    Check_List(parameter, request.arguments.back());
  }
  request.given.assign(request.arguments.size(), true);
}

void Take_Named(json& values, std::size_t positional, Request& request) {
  if (!values.is_object()) throw Invalid_Request("\"named\" has to be an object of values");
  const auto& parameters = request.method->parameters;
  for (auto entry = values.begin(); entry != values.end(); ++entry) {
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&](const auto& each) { return each.name == entry.key(); });
    if (found == parameters.end()) {
      throw Invalid_Request(std::string(request.method->name) + " has no argument " +
                            Quoted(entry.key()));
    }
    const auto index = static_cast<std::size_t>(found - parameters.begin());
    if (index < positional)
      throw Invalid_Request("the argument " + Quoted(found->name) + " is given twice");
    if (request.arguments.size() <= index) {
      request.arguments.resize(index + 1);
      request.given.resize(index + 1);
    }
    request.given[index] = true;
    request.arguments[index] = Value_From_Json(std::move(entry.value()), found->name);
    Check_List(*found, request.arguments[index]);
  }
}

void Check_Keys(const json& root) {
  for (auto entry = root.begin(); entry != root.end(); ++entry) {
    // A file of golden cases can be sent as it is: "expect" is for its reader.
    const auto& key = entry.key();
    constexpr std::array<std::string_view, 5> known{"call", "args", "named", "expect", "explain"};
    if (std::ranges::find(known, key) == known.end())
      throw Invalid_Request("the key " + Quoted(key) + " is not known");
  }
}

void Read_Document(json& root, Request& request) {
  if (!root.is_object()) throw Invalid_Request("a request is an object: {\"call\": ...}");
  Check_Keys(root);
  if (const auto explain = root.find("explain"); explain != root.end()) {
    if (!explain->is_boolean()) throw Invalid_Request("\"explain\" has to be true or false");
    request.explain = explain->get<bool>();
  }
  request.method = &Called_Method(root);
  if (const auto values = root.find("args"); values != root.end())
    Take_Positional(*values, request);
  if (const auto values = root.find("named"); values != root.end())
    Take_Named(*values, request.arguments.size(), request);
}

}  // namespace

Request Read_Request(std::string_view line) {
  Request request;
  json root;
  try {
    Parse_Json(line, root, request.id);
    Read_Document(root, request);
  } catch (const Invalid_Request& invalid) {
    request.problem = invalid.what();
  }
  return request;
}

std::string Missing_Argument(const Request& request) {
  const auto& parameters = request.method->parameters;
  for (std::size_t at = 0; at < parameters.size(); ++at) {
    const bool is_given = at < request.given.size() && request.given[at];
    if (is_given || parameters[at].optional || parameters[at].kind == Parameter_Kind::list)
      continue;
    return "Too few arguments: " + std::string(parameters[at].name) + " is missing in " +
           Signature(*request.method) + ".";
  }
  return {};
}

bool Is_Blank_Line(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

}  // namespace quorvex
