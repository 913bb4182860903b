// What the functions are, for people to read in a terminal.
#include "cli/help/function_reference.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "cli/help/example_result.h"
#include "formula/formula.h"
#include "io/wrapped.h"

namespace quorvex {
namespace {

std::string_view First_Sentence(std::string_view text) {
  const auto end = text.find(". ");
  return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, text.size()), ' ');
  return padded;
}

std::string Indented_Lines(std::string_view lines) {
  std::string indented;
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(line.size() + 1, lines.size()));
    indented.append("  ").append(line).append("\n");
  }
  return indented;
}

template <typename Items, typename Name>
std::size_t Widest(const Items& items, const Name& name) {
  std::size_t width = 0;
  for (const auto& item : items) width = std::max(width, name(item).size());
  return width;
}

std::string Argument_Lines(const Method& method) {
  const auto name = [](const Parameter& parameter) { return parameter.name; };
  const std::size_t width = Widest(method.parameters, name) + 4;
  std::string lines;
  for (const Parameter& parameter : method.parameters)
    lines += "  " + Padded(parameter.name, width - 2) + Wrapped(parameter.help, width) + "\n";
  return lines;
}

// A heading, and below it lines that are broken where they are too long.
template <typename Lines>
std::string Block(std::string_view heading, const Lines& lines) {
  std::string text = "\n" + std::string(heading) + "\n";
  for (const std::string_view line : lines) text += "  " + Wrapped(line, 2) + "\n";
  return text;
}

}  // namespace

std::string Signature(const Method& method) {
  std::string text(method.name);
  text += '(';
  for (const Parameter& parameter : method.parameters) {
    if (&parameter != &method.parameters.front()) text += ", ";
    text +=
        parameter.optional ? "[" + std::string(parameter.name) + "]" : std::string(parameter.name);
  }
  return text + ")";
}

std::vector<std::pair<std::string_view, std::vector<const Method*>>> Functions_By_Category() {
  using Category = std::pair<std::string_view, std::vector<const Method*>>;
  std::vector<Category> categories;
  std::vector<const Method*> others;
  for (const Method& method : Catalogue()) {
    if (method.category.empty()) {
      others.push_back(&method);
      continue;
    }
    auto found = std::find_if(categories.begin(), categories.end(),
                              [&](const auto& each) { return each.first == method.category; });
    if (found == categories.end()) found = categories.insert(found, Category(method.category, {}));
    found->second.push_back(&method);
  }
  if (!others.empty()) categories.emplace_back("For programs", std::move(others));
  return categories;
}

std::string Function_List() {
  const std::size_t width =
      Widest(Catalogue(), [](const Method& method) { return method.name; }) + 4;
  std::string text;
  for (const auto& [category, methods] : Functions_By_Category()) {
    if (!text.empty()) text += '\n';
    text.append(category).append("\n");
    for (const Method* method : methods) {
      text += "  " + Padded(method->name, width - 2) +
              Wrapped(First_Sentence(method->description), width) + "\n";
    }
  }
  return text;
}

std::optional<std::string> Function_Help(cls_Quorvex& engine, std::string_view name) {
  const Method* method = Find_Method(name);
  if (method == nullptr) return std::nullopt;
  std::string text =
      Wrapped(Signature(*method), 4) + "\n\n" + Wrapped(method->description, 0) + "\n";
  if (!method->parameters.empty())
    text += "\nArguments (in brackets above: optional)\n" + Argument_Lines(*method);
  text += Block("Returns", std::array{method->results.returns});
  text += Block("Tokens and failures", method->results.failures);
  if (!method->example.empty()) {
    text += "\nExample\n  " + std::string(method->example) + "\n" +
            Indented_Lines(Example_Result(engine, method->example));
  }
  return text;
}

std::string No_Such_Function(std::string_view name) {
  const auto nearest = Nearest_Function(name);
  return "there is no function \"" + std::string(name) + "\"" +
         (nearest ? "; did you mean " + std::string(*nearest) + "?" : "");
}

}  // namespace quorvex
