// What the functions are, for people to read: lists, explanations and the reference page.
#include "cli/function_reference.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "cli/result_text.h"
#include "formula/evaluate.h"
#include "formula/formula.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::size_t page_width = 92;

// Examples are written with "." and ",", and mean the same wherever they are read.
class Example_Settings {
 public:
  Example_Settings() {
    Current_Platform().locale = Fixed_Locale(Locale{});
    Set_Default_MaxSD(100);
  }
  ~Example_Settings() {
    Current_Platform().locale = locale_;
    Set_Default_MaxSD(digits_);
  }
  Example_Settings(const Example_Settings&) = delete;
  Example_Settings& operator=(const Example_Settings&) = delete;

 private:
  std::shared_ptr<Locale_Source> locale_ = Current_Platform().locale;
  double digits_ = Default_MaxSD();
};

std::string Example_Result(cls_Quorvex& engine, std::string_view example) {
  const Example_Settings settings;
  std::string result;
  try {
    Append_Result_Lines(result, Evaluate_Alone(engine, Parse_Formula(example)));
  } catch (const Run_Time_Failure& failure) {
    result = std::string(failure.what()) + "\n";
  }
  return result;
}

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

std::string_view First_Sentence(std::string_view text) {
  const auto end = text.find(". ");
  return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, text.size()), ' ');
  return padded;
}

// Breaks at blanks; lines after the first begin with `indent` blanks.
std::string Wrapped(std::string_view text, std::size_t indent) {
  std::string wrapped;
  std::size_t column = indent;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (column > indent && column + 1 + word.size() > page_width) {
      wrapped += '\n' + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      wrapped += ' ';
      ++column;
    }
    wrapped += word;
    column += word.size();
  }
  return wrapped;
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

std::string In_Table(std::string_view text) {
  std::string cell;
  for (const char character : text) {
    if (character == '|') cell += '\\';
    cell += character;
  }
  return cell;
}

std::string Reference_Entry(cls_Quorvex& engine, const Method& method) {
  std::string text = "### " + std::string(method.name) + "\n\n`" + Signature(method) + "`\n\n" +
                     std::string(method.description) + "\n\n";
  if (!method.parameters.empty()) {
    text += "| Argument | Meaning |\n|---|---|\n";
    for (const Parameter& parameter : method.parameters)
      text += "| `" + std::string(parameter.name) + "` | " + In_Table(parameter.help) + " |\n";
    text += '\n';
  }
  if (!method.example.empty()) {
    text += "```\n" + std::string(method.example) + "\n" + Example_Result(engine, method.example) +
            "```\n\n";
  }
  return text;
}

}  // namespace

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

std::string Function_Reference(cls_Quorvex& engine) {
  std::string text =
      "# Functions\n\n"
      "Written by `quorvex functions --markdown`: change the catalogue, not this page. Arguments "
      "in "
      "brackets are optional. The examples are calculated with `.` as the decimal separator, `,` "
      "between thousands and `$` as the currency symbol.\n\n";
  for (const auto& [category, methods] : Functions_By_Category()) {
    text.append("## ").append(category).append("\n\n");
    for (const Method* method : methods) text += Reference_Entry(engine, *method);
  }
  text.pop_back();
  return text;
}

}  // namespace quorvex
