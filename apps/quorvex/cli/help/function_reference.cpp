// What the functions are, for people to read in a terminal.
#include "cli/help/function_reference.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

#include "cli/help/example_result.h"
#include "formula/choices.h"
#include "formula/find_function.h"
#include "host/conversions.h"
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

std::string List_Line(std::string_view name, std::string_view description, std::size_t width) {
  return "  " + Padded(name, width - 2) + Wrapped(First_Sentence(description), width) + "\n";
}

// A heading, and below it lines that are broken where they are too long.
template <typename Lines>
std::string Block(std::string_view heading, const Lines& lines) {
  std::string text = "\n" + std::string(heading) + "\n";
  for (const std::string_view line : lines) text += "  " + Wrapped(line, 2) + "\n";
  return text;
}

std::string Page(cls_Quorvex& engine, const Method& method) {
  std::string text = Wrapped(Signature(method), 4) + "\n\n" + Wrapped(method.description, 0) + "\n";
  if (!method.parameters.empty())
    text += "\nArguments (in brackets above: optional)\n" + Argument_Lines(method);
  text += Block("Returns", std::array{method.results.returns});
  text += Block("Tokens and failures", method.results.failures);
  if (!method.example.empty()) {
    text += "\nExample\n  " + std::string(method.example) + "\n" +
            Indented_Lines(Example_Result(engine, method.example));
  }
  return text;
}

std::string Choice_Page(cls_Quorvex& engine, const Choice_Function& function) {
  return std::string(function.signature) + "\n\n" + Wrapped(function.description, 0) +
         "\n\nExample\n  " + std::string(function.example) + "\n" +
         Indented_Lines(Example_Result(engine, function.example));
}

std::vector<std::string> Capital_Words(std::string_view text) {
  std::istringstream words(To_Capitals(text));
  return {std::istream_iterator<std::string>(words), {}};
}

// The functions in whose name, category or description all the words stand, the part of a word
// being enough.
std::optional<std::string> List_Of_Fitting(std::string_view words, Functions functions) {
  const auto wanted = Capital_Words(words);
  std::vector<const Method*> fitting;
  for (const Method& method : Catalogue()) {
    if (functions == Functions::of_worksheets && !Is_Worksheet_Function(method)) continue;
    const std::string about =
        To_Capitals(std::string(method.name) + " " + std::string(method.category) + " " +
                    std::string(method.description));
    const bool fits = std::all_of(wanted.begin(), wanted.end(), [&](const std::string& word) {
      return about.find(word) != std::string::npos;
    });
    if (fits) fitting.push_back(&method);
  }
  if (wanted.empty() || fitting.empty()) return std::nullopt;
  const std::size_t width = Widest(fitting, [](const Method* method) { return method->name; }) + 4;
  std::string text;
  for (const Method* method : fitting) text += List_Line(method->name, method->description, width);
  return text;
}

}  // namespace

std::vector<std::pair<std::string_view, std::vector<const Method*>>> Functions_By_Category(
    Functions functions) {
  using Category = std::pair<std::string_view, std::vector<const Method*>>;
  std::vector<Category> categories;
  std::vector<const Method*> others;
  for (const Method& method : Catalogue()) {
    if (functions == Functions::of_worksheets && !Is_Worksheet_Function(method)) continue;
    if (method.category.empty()) {
      others.push_back(&method);
      continue;
    }
    auto found = std::find_if(categories.begin(), categories.end(),
                              [&](const auto& each) { return each.first == method.category; });
    if (found == categories.end()) found = categories.insert(found, Category(method.category, {}));
    found->second.push_back(&method);
  }
  if (!others.empty()) {
    categories.emplace_back(functions == Functions::all ? "For programs" : "Others",
                            std::move(others));
  }
  return categories;
}

std::string Function_List() {
  const auto name = [](const Method& method) {
    return Is_Worksheet_Function(method) ? method.name : std::string_view();
  };
  const std::size_t width = Widest(Catalogue(), name) + 4;
  std::string text;
  for (const auto& [category, methods] : Functions_By_Category(Functions::of_worksheets)) {
    text.append(category).append("\n");
    for (const Method* method : methods)
      text += List_Line(method->name, method->description, width);
    text += '\n';
  }
  text += "Choice\n";
  for (const Choice_Function& function : Choice_Functions())
    text += List_Line(function.name, function.description, width);
  return text;
}

std::string Program_Method_List() {
  std::vector<const Method*> methods;
  for (const Method& method : Catalogue())
    if (!Is_Worksheet_Function(method)) methods.push_back(&method);
  const std::size_t width = Widest(methods, [](const Method* method) { return method->name; }) + 4;
  std::string text = "For programs: batch calls them, and the library\n";
  for (const Method* method : methods) text += List_Line(method->name, method->description, width);
  return text;
}

std::optional<std::string> Function_Help(cls_Quorvex& engine, std::string_view words,
                                         Functions functions) {
  if (const Choice_Function* choice = Find_Choice(words)) return Choice_Page(engine, *choice);
  const Method* method = Find_Function(words, functions);
  if (method == nullptr) method = Find_Function("qvx" + std::string(words), functions);
  if (method != nullptr) return Page(engine, *method);
  return List_Of_Fitting(words, functions);
}

std::string No_Such_Function(std::string_view name) {
  const std::string quoted = "\"" + std::string(name) + "\"";
  if (name.find(' ') != std::string_view::npos)
    return "there is no function whose description has all of the words " + quoted;
  if (name.find_first_not_of("+-*/^&%=<>") == std::string_view::npos)
    return quoted + " is no function but an operator, as in quorvex '1/7*2^0.5'";
  const bool is_for_programs = Find_Method(name) != nullptr;
  return "there is no function " + quoted +
         (is_for_programs ? " for formulas; programs have one (functions --programs " +
                                std::string(Find_Method(name)->name) + ")"
                          : "") +
         Advice_On_Function(name, Functions::of_worksheets);
}

}  // namespace quorvex
