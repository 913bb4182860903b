#include "cli/help/function_page.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "cli/help/example_result.h"
#include "cli/help/function_reference.h"
#include "frame/catalogue.h"

namespace quorvex {
namespace {

constexpr std::string_view introduction =
    "# Functions\n\n"
    "Written by `quorvex functions --markdown`: change the catalogue, not this page. "
    "`quorvex functions NAME` tells the same of one function.\n\n"
    "Arguments in brackets are optional. All examples on this page are calculated with `.` as the "
    "decimal separator, `,` between thousands, `$` as the currency symbol and a default limit of "
    "100 digits. What may surprise is told in [Know before you rely](know-before-you-rely.md).\n\n";

constexpr std::string_view on_numbers =
    "## Numbers, tokens and failures\n\n"
    "A number is text, or any value that a cell holds: digits with one decimal separator, a "
    "leading "
    "minus or parentheses, thousands separators, the currency symbol, E notation with a sign "
    "(`1.5E+3`), matching quote marks around it. Separators and symbol are those of your "
    "locale.\n\n"
    "An error comes back as text, a token: `#VALUE!`, `#NUM!` or `#DIV/0!`. A few functions spell "
    "one without the `#`, as their sections tell. Where a section says that the call fails, there "
    "is no text: a cell shows `#VALUE!` as an error value, and the tool tells the reason.\n\n";

constexpr std::string_view on_options =
    "## Formatting options\n\n"
    "Most functions take some of these, in this order, and leave out the rest:\n\n";

constexpr std::string_view on_lists =
    "## Options among the elements of a list\n\n"
    "A list function takes its options as an element of the list, text of the form "
    "`\"format:negative,thousands,currency,exponent,MSD=n\"` with any of these words, in any order "
    "and in any case of letters:\n\n"
    "| Word | Effect |\n|---|---|\n"
    "| `negative` | negative results in parentheses |\n"
    "| `thousands` | integer digits grouped by thousands |\n"
    "| `currency` | the currency symbol |\n"
    "| `exponent` | E notation, without grouping |\n"
    "| `MSD=n` | at most n significant digits, from where it stands in the list on; without it "
    "nothing is cut, whatever the default limit is. Divisors and multiples are worked out with all "
    "digits and shown at this limit, wherever it stands; without it, at the default limit |\n\n"
    "Blank cells are passed over, and so is text that is no number.\n\n";

std::string Code(std::string_view text) {
  return "`" + std::string(text) + "`";
}

std::string Sentences(std::span<const std::string_view> sentences) {
  std::string text;
  for (const std::string_view sentence : sentences)
    text.append(text.empty() ? "" : " ").append(sentence);
  return text;
}

std::string In_Table(std::string_view text) {
  std::string cell;
  for (const char character : text) {
    if (character == '|') cell += '\\';
    cell += character;
  }
  return cell;
}

std::string Argument_Row(std::string_view argument, std::string_view meaning) {
  return "| " + std::string(argument) + " | " + In_Table(meaning) + " |\n";
}

// The options as the method that resolves them has them.
std::span<const Parameter> Formatting_Options() {
  const Method* method = Find_Method("Restrictionator");
  if (method == nullptr) throw std::logic_error("The catalogue has no formatting options.");
  return method->parameters;
}

// An argument of that name may mean something else.
bool Is_Formatting_Option(const Parameter& parameter) {
  return std::ranges::any_of(Formatting_Options(), [&](const Parameter& option) {
    return option.name == parameter.name && option.help == parameter.help;
  });
}

std::string Options_Row(std::span<const Parameter> options) {
  const std::string names =
      Code(options.front().name) +
      (options.size() > 1 ? " to " + Code(options.back().name) : std::string());
  return Argument_Row(names, options.size() > 1 ? "[formatting options](#formatting-options)"
                                                : "a [formatting option](#formatting-options)");
}

// Options in a row are explained once, at the top of the page.
std::string Argument_Table(const Method& method) {
  const bool explains_options = method.parameters.data() == Formatting_Options().data();
  std::string text = "| Argument | Meaning |\n|---|---|\n";
  const std::span<const Parameter> parameters = method.parameters;
  for (std::size_t place = 0; place < parameters.size();) {
    std::size_t end = place;
    while (!explains_options && end < parameters.size() && Is_Formatting_Option(parameters[end]))
      ++end;
    if (end > place) {
      text += Options_Row(parameters.subspan(place, end - place));
      place = end;
    } else {
      text += Argument_Row(Code(parameters[place].name), parameters[place].help);
      ++place;
    }
  }
  return text + "\n";
}

std::string Section(cls_Quorvex& engine, const Method& method) {
  std::string text = "### " + std::string(method.name) + "\n\n" + Code(Signature(method)) + "\n\n" +
                     std::string(method.description) + "\n\n";
  if (!method.parameters.empty()) text += Argument_Table(method);
  text += "**Returns:** " + std::string(method.results.returns) + "\n\n**Tokens and failures:** " +
          Sentences(method.results.failures) + "\n\n";
  if (!method.example.empty()) {
    text += "```\n" + std::string(method.example) + "\n" + Example_Result(engine, method.example) +
            "```\n\n";
  }
  return text;
}

// Headings are linked to by their letters in lower case.
std::string Link(std::string_view heading) {
  std::string anchor(heading);
  for (char& letter : anchor) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return "[" + std::string(heading) + "](#" + anchor + ")";
}

std::string Contents() {
  std::string text = "| Category | Functions |\n|---|---|\n";
  for (const auto& [category, methods] : Functions_By_Category()) {
    std::string links;
    for (const Method* method : methods) links += (links.empty() ? "" : ", ") + Link(method->name);
    text += Argument_Row(category, links);
  }
  return text + "\n";
}

std::string Options(cls_Quorvex& engine) {
  std::string text(on_options);
  text += Argument_Table(*Find_Method("Restrictionator"));
  text += "What they make of -1234567.891:\n\n| Formula | Result |\n|---|---|\n";
  for (const std::string_view options :
       {"", ", 0", ", 2", ", , TRUE", ", , , TRUE", ", 2, TRUE, TRUE", ", , , , TRUE",
        ", , , , , 3", ", , , , , , 2", ", , , , , , 5"}) {
    const std::string formula = "qvxFORMAT(\"-1234567.891\"" + std::string(options) + ")";
    std::string result = Example_Result(engine, formula);
    result.pop_back();
    text += "| " + Code(formula) + " | " + Code(result) + " |\n";
  }
  return text + "\n";
}

}  // namespace

std::string Function_Page(cls_Quorvex& engine) {
  std::string text(introduction);
  text += Contents();
  text += on_numbers;
  text += Options(engine);
  text += on_lists;
  for (const auto& [category, methods] : Functions_By_Category()) {
    text.append("## ").append(category).append("\n\n");
    for (const Method* method : methods) text += Section(engine, *method);
  }
  text.pop_back();
  return text;
}

}  // namespace quorvex
