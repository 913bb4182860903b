// The manual page of the tool, in the language of man.
#include "cli/help/manual_page.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <vector>

#include "cli/help/function_reference.h"
#include "frame/catalogue.h"
#include "quorvex_version.h"

namespace quorvex {
namespace {

// Text that man shows as it stands.
std::string Plain(std::string_view text) {
  std::string roff;
  bool starts_line = true;
  for (const char character : text) {
    if (starts_line && (character == '.' || character == '\'')) roff += "\\&";
    if (character == '\\') {
      roff += "\\(rs";
    } else if (character == '-') {
      roff += "\\-";
    } else {
      roff += character;
    }
    starts_line = character == '\n';
  }
  return roff;
}

std::string Bold(std::string_view text) {
  return "\\fB" + Plain(text) + "\\fR";
}

std::string Italic(std::string_view text) {
  return "\\fI" + Plain(text) + "\\fR";
}

std::string Option_Names(const CLI::Option& option) {
  if (option.get_positional()) return Italic(option.get_name(true));
  std::string names;
  for (const std::string& name : option.get_snames()) names += Bold("-" + name) + ", ";
  for (const std::string& name : option.get_lnames()) names += Bold("--" + name) + ", ";
  names.resize(names.size() - 2);
  if (option.get_expected_max() > 0 && !option.get_type_name().empty())
    names += " " + Italic(option.get_type_name());
  return names;
}

std::string Options_Of(const CLI::App& app) {
  std::string text;
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_group().empty()) continue;
    text.append(".TP\n").append(Option_Names(*option)).append("\n");
    text.append(Plain(option->get_description())).append("\n");
  }
  return text;
}

std::string Commands_Of(const CLI::App& app) {
  std::string text;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    text.append(".SS quorvex ").append(Plain(command->get_name())).append("\n");
    text.append(Plain(command->get_description())).append(".\n").append(Options_Of(*command));
    if (!command->get_footer().empty())
      text.append(".PP\n.EX\n").append(Plain(command->get_footer())).append("\n.EE\n");
  }
  return text;
}

// The lines that are set in: what stands around them is told elsewhere on the page.
std::string Example_Lines(std::string_view footer) {
  constexpr std::string_view indent = "  ";
  std::string lines;
  while (!footer.empty()) {
    std::string_view line = footer.substr(0, footer.find('\n'));
    footer.remove_prefix(std::min(line.size() + 1, footer.size()));
    if (!line.starts_with(indent)) continue;
    line.remove_prefix(indent.size());
    lines.append(line).append("\n");
  }
  return lines;
}

std::string Function_Section() {
  std::string text;
  for (const auto& [category, methods] : Functions_By_Category(Functions::of_worksheets)) {
    text.append(".SS ").append(Plain(category)).append("\n");
    for (const Method* method : methods) {
      text.append(".TP\n").append(Bold(method->name)).append("\n");
      text.append(Plain(method->description)).append("\n");
    }
  }
  return text;
}

}  // namespace

std::string Manual_Page(const CLI::App& app) {
  return ".TH QUORVEX 1 \"\" \"Quorvex " + std::string(version) +
         "\" \"User Commands\"\n"
         ".SH NAME\nquorvex \\- decimal numbers of any length, by the formulas of a spreadsheet\n"
         ".SH SYNOPSIS\n.B quorvex\n.RI [ options ]\n.RI [ formula ...]\n.br\n.B quorvex\n"
         ".I command\n.RI [ options ]\n.RI [ argument ...]\n"
         ".SH DESCRIPTION\n"
         "Calculates formulas as a spreadsheet writes them, on numbers held as text that may have "
         "any count of digits. Results have 100 significant digits unless a call, an option or the "
         "stored setting gives another limit. Without arguments it is a prompt on a terminal; "
         "otherwise it reads formulas from standard input.\n"
         ".SH OPTIONS\n" +
         Options_Of(app) + ".SH COMMANDS\n" + Commands_Of(app) + ".SH FUNCTIONS\n" +
         Bold("quorvex functions") + " " + Italic("NAME") +
         "\ntells the arguments of a function, its result and an example.\n" + Function_Section() +
         ".SH EXIT STATUS\n.TP\n0\nSuccess.\n.TP\n1\nA calculation failed.\n.TP\n2\nWrong usage.\n"
         ".SH FILES\n.TP\n.I $XDG_CONFIG_HOME/quorvex/settings\n"
         "The stored default limit of significant digits; below ~/.config where the variable is "
         "not set.\n"
         ".SH EXAMPLES\n.EX\n" +
         Plain(Example_Lines(app.get_footer())) + ".EE\n";
}

}  // namespace quorvex
