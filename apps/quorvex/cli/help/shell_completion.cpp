// Completion of command lines in the shells bash and zsh.
#include "cli/help/shell_completion.h"

#include <CLI/CLI.hpp>
#include <set>
#include <string_view>
#include <vector>

#include "formula/find_function.h"
#include "frame/catalogue.h"

namespace quorvex {
namespace {

std::vector<const CLI::App*> Commands_Of(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<std::string> Names_Of(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

std::vector<const CLI::Option*> Options_Of(const CLI::App& app) {
  return app.get_options([](const CLI::Option* option) {
    return !option->get_positional() && !option->get_group().empty();
  });
}

bool Takes_Value(const CLI::Option& option) {
  return option.get_expected_max() > 0;
}

std::string Function_Names() {
  std::string names;
  for (const Method& method : Catalogue())
    if (Is_Worksheet_Function(method)) names.append(method.name).append(" ");
  return names;
}

std::string Option_Names(const CLI::App& app) {
  std::string names;
  for (const CLI::Option* option : Options_Of(app)) {
    for (const std::string& name : Names_Of(*option)) names.append(name).append(" ");
  }
  return names;
}

// The options behind which a value follows that can't be completed, as a pattern of `case`.
std::string Options_With_Values(const CLI::App& app) {
  std::set<std::string> names;
  std::vector<const CLI::App*> all = Commands_Of(app);
  all.push_back(&app);
  for (const CLI::App* each : all) {
    for (const CLI::Option* option : Options_Of(*each)) {
      if (!Takes_Value(*option)) continue;
      for (const std::string& name : Names_Of(*option)) names.insert(name);
    }
  }
  for (const char* completed : {"-o", "--output", "--locale", "--currency-side", "--completion"})
    names.erase(completed);
  std::string pattern;
  for (const std::string& name : names) pattern.append(pattern.empty() ? "" : "|").append(name);
  return pattern;
}

// What zsh would take for the end of a description, or of the whole word.
std::string Quoted(std::string_view text) {
  std::string quoted;
  for (const char character : text) {
    if (character == '\'') {
      quoted += "'\\''";
      continue;
    }
    if (character == '[' || character == ']' || character == ':' || character == '\\')
      quoted += '\\';
    quoted += character;
  }
  return quoted;
}

// How zsh completes the value of an option.
std::string Zsh_Values(const std::string& type) {
  if (type == "FILE") return "_files";
  if (type.find('|') == std::string::npos) return "";
  std::string words = type;
  for (char& character : words) {
    if (character == '|') character = ' ';
  }
  return "(" + words + ")";
}

std::string Zsh_Options(const CLI::App& app) {
  std::string lines;
  for (const CLI::Option* option : Options_Of(app)) {
    for (const std::string& name : Names_Of(*option)) {
      lines.append(" \\\n    '").append(name).append("[");
      lines.append(Quoted(option->get_description())).append("]");
      if (Takes_Value(*option)) {
        const std::string type = option->get_type_name();
        lines.append(":").append(Quoted(type)).append(":").append(Zsh_Values(type));
      }
      lines += "'";
    }
  }
  return lines;
}

}  // namespace

std::string Bash_Completion(const CLI::App& app) {
  std::string names;
  std::string pattern;
  std::string options;
  for (const CLI::App* command : Commands_Of(app)) {
    const std::string& name = command->get_name();
    names.append(name).append(" ");
    pattern.append(pattern.empty() ? "" : "|").append(name);
    options.append("    ").append(name).append(") options='");
    options.append(Option_Names(*command)).append("' ;;\n");
  }
  return "# Completion of quorvex for bash, written by `quorvex --completion bash`.\n"
         "_quorvex() {\n"
         "  local current=$2 previous=$3 command= options= word\n"
         "  local functions='" +
         Function_Names() +
         "'\n"
         "  COMPREPLY=()\n"
         "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
         "    case $word in " +
         pattern +
         ") command=$word; break ;; esac\n"
         "  done\n"
         "  case $previous in\n"
         "    -o|--output) mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); return ;;\n"
         "    --locale) mapfile -t COMPREPLY < <(compgen -W \"$(locale -a)\" -- \"$current\"); "
         "return "
         ";;\n"
         "    --currency-side) mapfile -t COMPREPLY < <(compgen -W 'before after' -- "
         "\"$current\"); "
         "return ;;\n"
         "    --completion) mapfile -t COMPREPLY < <(compgen -W 'bash zsh' -- \"$current\"); "
         "return "
         ";;\n"
         "    " +
         Options_With_Values(app) +
         ") return ;;\n"
         "  esac\n"
         "  case $command in\n" +
         options + "    *) options='" + Option_Names(app) +
         "' ;;\n"
         "  esac\n"
         "  case $current in\n"
         "    -*) mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\"); return ;;\n"
         "  esac\n"
         "  case $command in\n"
         "    sheet) mapfile -t COMPREPLY < <(compgen -f -- \"$current\") ;;\n"
         "    settings) mapfile -t COMPREPLY < <(compgen -W max-sd -- \"$current\") ;;\n"
         "    functions) mapfile -t COMPREPLY < <(compgen -W \"$functions\" -- \"$current\") ;;\n"
         "    '') mapfile -t COMPREPLY < <(compgen -W \"" +
         names +
         "$functions\" -- \"$current\") ;;\n"
         "  esac\n"
         "}\n"
         "complete -o filenames -F _quorvex quorvex\n";
}

std::string Zsh_Completion(const CLI::App& app) {
  std::string commands;
  std::string cases;
  for (const CLI::App* command : Commands_Of(app)) {
    const std::string& name = command->get_name();
    commands.append("    '").append(name).append(":");
    commands.append(Quoted(command->get_description())).append("'\n");
    std::string positional;
    if (name == "sheet") positional = " \\\n    '1:CSV file:_files'";
    if (name == "functions") positional = " \\\n    '1:function:($functions)'";
    if (name == "settings") positional = " \\\n    '1:setting:(max-sd)'";
    cases.append("  ").append(name).append(")\n  _arguments");
    cases.append(Zsh_Options(*command)).append(positional).append("\n  ;;\n");
  }
  return "#compdef quorvex\n"
         "# Completion of quorvex for zsh, written by `quorvex --completion zsh`.\n"
         "local state line\n"
         "local -a commands functions\n"
         "commands=(\n" +
         commands + ")\nfunctions=(" + Function_Names() +
         ")\n"
         "_arguments -C" +
         Zsh_Options(app) +
         " \\\n    '1: :->first' \\\n    '*:: :->rest'\n"
         "case $state in\n"
         "first)\n"
         "  _describe command commands\n"
         "  compadd -a functions\n"
         "  ;;\n"
         "rest)\n"
         "  case $line[1] in\n" +
         cases +
         "  esac\n"
         "  ;;\n"
         "esac\n";
}

}  // namespace quorvex
