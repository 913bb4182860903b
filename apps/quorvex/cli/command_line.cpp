// The command line of the tool.
#include "cli/command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "batch/answer.h"
#include "batch/serve.h"
#include "cli/common_options.h"
#include "cli/formulas.h"
#include "cli/help/function_page.h"
#include "cli/help/function_reference.h"
#include "cli/help/manual_page.h"
#include "cli/help/shell_completion.h"
#include "cli/prompt.h"
#include "cli/quiet_face.h"
#include "cli/session.h"
#include "cli/settings_command.h"
#include "cli/sheet_command.h"
#include "cli/terminal_face.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/attended.h"
#include "io/process.h"
#include "quorvex_version.h"
#include "sheet/csv.h"

namespace quorvex {
namespace {

struct Arguments {
  Common_Options common;
  std::vector<std::string> formulas;
  Sheet_Options sheet;
  Settings_Words settings;
  std::string function;
  bool markdown = false;
  bool manual_page = false;
  std::string completion;
  unsigned jobs = 1;
};

constexpr const char* examples =
    "Examples:\n"
    "  quorvex 'qvxADD(\"12345678901234567890.5\", 1.25)'\n"
    "  quorvex --digits 30 - < formulas.txt\n"
    "  quorvex sheet prices.csv -o calculated.csv\n"
    "  quorvex functions qvxADD\n"
    "  quorvex settings max-sd 200\n"
    "  echo '{\"call\":\"qvxADD\",\"args\":[1,\"2.5\"]}' | quorvex batch\n"
    "Without arguments: a prompt on a terminal; else formulas are read from standard input.\n"
    "Exit code: 0 for success, 1 for a failed calculation, 2 for wrong usage.";

std::string Check_Whole(const std::string& text, std::size_t most) {
  std::size_t number = 0;
  const bool is_good =
      CLI::detail::lexical_cast(text, number) && number >= 1 && number <= most && text[0] != '-';
  return is_good ? ""
                 : "a whole number from 1 to " + std::to_string(most) + " is needed, not " + text;
}

std::string Check_Width(const std::string& text) {
  return Check_Whole(text, 1'000'000'000);
}

std::string Check_Jobs(const std::string& text) {
  return Check_Whole(text, 256);
}

std::string Check_Shell(const std::string& text) {
  return text == "bash" || text == "zsh" ? "" : "bash or zsh is needed, not " + text;
}

constexpr const char* for_packages = "For packages";

void Describe_Sheet(CLI::App& app, Arguments& arguments) {
  auto* sheet = app.add_subcommand("sheet", "Calculate a worksheet from a CSV file");
  sheet->add_option("file", arguments.sheet.file, "CSV file; cells that begin with = are formulas")
      ->type_name("")
      ->required();
  sheet
      ->add_option("-o,--output", arguments.sheet.output,
                   "Write the values as CSV to this file (- for standard output)")
      ->type_name("FILE");
  sheet->add_option("--name", arguments.sheet.names, "Define a name for a cell, range or formula")
      ->type_name("NAME=REFERENCE")
      ->allow_extra_args(false);
  sheet->add_option("--width", arguments.sheet.width, "Cut printed values to so many characters")
      ->type_name("N")
      ->check(CLI::Validator(Check_Width, ""));
  sheet->add_flag("--watch", arguments.sheet.watch,
                  "Go on until Ctrl-C, and show the worksheet anew when the file changes or "
                  "another default limit is stored");
  Add_Common_Options(*sheet, arguments.common);
  sheet->footer("Example:\n  quorvex sheet prices.csv --name rates=B2:B13 -o calculated.csv");
}

void Describe_Functions(CLI::App& app, Arguments& arguments) {
  auto* functions = app.add_subcommand("functions", "List the functions, or explain one");
  auto* name = functions->add_option("name", arguments.function, "The function to explain");
  name->type_name("");
  functions->add_flag("--markdown", arguments.markdown, "Write the reference of all functions")
      ->excludes(name);
}

void Describe_Batch(CLI::App& app, Arguments& arguments) {
  auto* batch = app.add_subcommand("batch", "Answer calls in JSON, a line each");
  batch->add_option("--jobs", arguments.jobs, "Processes that calculate at once")
      ->type_name("N")
      ->check(CLI::Validator(Check_Jobs, ""));
  Add_Common_Options(*batch, arguments.common);
  batch->footer(
      "A JSON number that a 64-bit float gives back in its shortest form is a number like that\n"
      "of a cell, of which functions see 15 digits. Every other one arrives as text with all its\n"
      "digits, and so does every number in quotes.\n"
      "Example:\n"
      "  echo '{\"id\":1,\"call\":\"qvxADD\",\"args\":[1,\"2.5\"]}' | quorvex batch\n"
      "  {\"id\":1,\"value\":\"3.5\"}");
}

void Describe_Settings(CLI::App& app, Arguments& arguments) {
  auto* settings = app.add_subcommand("settings", "Show the settings, or change one");
  settings->add_option("name", arguments.settings.name, "max-sd, the only one there is")
      ->type_name("");
  settings->add_option("value", arguments.settings.value, "What to store, from 0 to 2147483648")
      ->type_name("");
  settings->footer(
      "max-sd is the default limit: the significant digits of a result where a function is not "
      "told how many.\nWithout arguments: a dialogue on a terminal; else all settings are listed.\n"
      "Examples:\n  quorvex settings max-sd\n  quorvex settings max-sd 200");
}

void Describe(CLI::App& app, Arguments& arguments) {
  app.set_version_flag("--version", std::string("quorvex ") + version);
  app.add_option("formula", arguments.formulas,
                 "Formulas to calculate; - reads them from standard input")
      ->type_name("");
  Add_Common_Options(app, arguments.common);
  app.add_flag("--manual-page", arguments.manual_page, "Write the manual page")
      ->group(for_packages);
  app.add_option("--completion", arguments.completion, "Write the completion script of a shell")
      ->type_name("bash|zsh")
      ->check(CLI::Validator(Check_Shell, ""))
      ->group(for_packages);
  app.require_subcommand(0, 1);
  Describe_Sheet(app, arguments);
  Describe_Functions(app, arguments);
  Describe_Batch(app, arguments);
  Describe_Settings(app, arguments);
  app.add_subcommand("about", "Tell what Quorvex is, and the default limit");
  app.footer(examples);
}

bool Is_Letter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

// True for what begins with a minus and can only be a formula: options hold no parenthesis and
// have a letter behind the minus.
bool Is_Negative_Formula(std::string_view argument) {
  if (argument.size() < 2 || argument[0] != '-' || argument[1] == '-') return false;
  return !Is_Letter(argument[1]) || argument.find('(') != std::string_view::npos;
}

// An "=" before such a formula changes nothing in it and keeps it from being taken for an option.
std::vector<std::string> Guarded_Arguments(int argc, char** argv) {
  std::vector<std::string> guarded(argv + 1, argv + argc);
  bool is_value = false;
  for (std::string& argument : guarded) {
    if (argument == "--") break;
    if (!is_value && Is_Negative_Formula(argument)) argument.insert(0, 1, '=');
    is_value = argument.starts_with("--") && argument.find('=') == std::string::npos;
  }
  return guarded;
}

Outcome Run_Functions(Session& session, const Arguments& arguments) {
  // Examples hold for everybody, whatever limit is stored.
  Current_Platform().settings = Settings_In_Memory();
  std::string& out = session.output().buffer();
  if (arguments.markdown) {
    out += Function_Page(session.engine());
  } else if (arguments.function.empty()) {
    out += Function_List();
  } else {
    const auto help = Function_Help(session.engine(), arguments.function);
    if (!help) throw Usage_Error(No_Such_Function(arguments.function));
    out += *help;
  }
  return Outcome::success;
}

Outcome Run_Batch(Session& session, const std::shared_ptr<Call_Guard>& guard,
                  const Arguments& arguments) {
  Show_No_Forms();   // answers stand alone on the output
  session.engine();  // tells what is wrong with the settings
  Answerer answerer(guard);
  const Answer_Function answer = [&answerer](std::string& out, std::string_view line) {
    answerer.append_answer(out, line);
  };
  if (arguments.jobs > 1) {
    Serve_In_Parallel(STDIN_FILENO, STDOUT_FILENO, arguments.jobs, answer);
  } else {
    Serve(STDIN_FILENO, STDOUT_FILENO, answer);
  }
  return Outcome::success;
}

// A word alone was probably meant as a command.
Outcome Calculate_Arguments(Session& session, const std::vector<std::string>& formulas) {
  const Outcome outcome = Calculate_All(session, formulas);
  const std::string& first = formulas.front();
  if (outcome == Outcome::wrong_usage && !first.empty() &&
      std::all_of(first.begin(), first.end(), Is_Letter)) {
    session.hint(
        "The commands are sheet, functions, batch, settings and about; \"quorvex --help\" tells "
        "more.");
  }
  return outcome;
}

// Formulas can open forms, which must not get into results that go to a file or another program.
void Choose_Face(Session& session) {
  if (Is_Terminal(STDOUT_FILENO)) {
    Show_Forms(session);
  } else {
    Show_No_Forms();
  }
}

Outcome Run_Formulas(Session& session, const Arguments& arguments) {
  Choose_Face(session);
  if (!arguments.formulas.empty()) return Calculate_Arguments(session, arguments.formulas);
  const bool is_dialogue = Is_Terminal(STDIN_FILENO) && Is_Terminal(STDOUT_FILENO);
  return is_dialogue ? Run_Prompt(session) : Calculate_Input(session);
}

bool Writes_For_Packages(Session& session, const CLI::App& app, const Arguments& arguments) {
  std::string& out = session.output().buffer();
  if (arguments.manual_page) out += Manual_Page(app);
  if (arguments.completion == "bash") out += Bash_Completion(app);
  if (arguments.completion == "zsh") out += Zsh_Completion(app);
  return !out.empty();
}

Outcome Run_Command(Session& session, const std::shared_ptr<Call_Guard>& guard, const CLI::App& app,
                    const Arguments& arguments) {
  const auto commands = app.get_subcommands();
  if (commands.empty() && Writes_For_Packages(session, app, arguments)) return Outcome::success;
  if (commands.empty()) return Run_Formulas(session, arguments);
  const std::string command = commands.front()->get_name();
  if (command == "settings" && arguments.common.digits) {
    throw Usage_Error(
        "--digits is for one run, and \"settings\" for all: give the one or the other");
  }
  if (!arguments.formulas.empty())
    throw Usage_Error("a formula and the command \"" + command + "\" don't go together");
  if (command == "sheet") {
    Choose_Face(session);
    return Calculate_Sheet(session, arguments.sheet);
  }
  if (command == "functions") return Run_Functions(session, arguments);
  if (command == "settings") return Run_Settings(session, arguments.settings);
  if (command == "about") return Run_About(session);
  return Run_Batch(session, guard, arguments);
}

// The hint at what to do next, after a message of the parser.
std::string Parse_Hint(const CLI::App& app, const CLI::ParseError& end) {
  const auto commands = app.get_subcommands();
  const std::string command = commands.empty() ? "" : commands.front()->get_name() + " ";
  std::string hint = "Run \"quorvex " + command + "--help\" for help.";
  if (command.empty() && std::string_view(end.what()).find(": -") != std::string_view::npos)
    hint += " Write -- before a formula that looks like an option.";
  return hint;
}

// Help and version are "errors" of the parser, too.
Outcome Report_Parse_End(Session& session, const CLI::App& app, const CLI::ParseError& end) {
  std::ostringstream shown;
  std::ostringstream ignored;
  const bool is_wanted = app.exit(end, shown, ignored) == 0;
  session.output().buffer() += shown.str();
  session.output().flush();
  if (is_wanted) return Outcome::success;
  session.error(end.what(), Parse_Hint(app, end));
  return Outcome::wrong_usage;
}

Outcome Run(Session& session, const std::shared_ptr<Call_Guard>& guard, const CLI::App& app,
            const Arguments& arguments) {
  try {
    const Outcome outcome = Run_Command(session, guard, app, arguments);
    session.output().flush();
    return outcome;
  } catch (const Usage_Error& error) {
    session.error(error.what(), error.detail());
  } catch (const File_Error& error) {
    session.error(error.what());
  }
  return Outcome::wrong_usage;
}

Outcome Parse_And_Run(int argc, char** argv) {
  Session plain(std::make_shared<Call_Guard>(std::nullopt));
  Arguments arguments;
  CLI::App app("Decimal numbers of any length, calculated by the formulas of a spreadsheet.",
               "quorvex");
  Describe(app, arguments);
  try {
    auto words = Guarded_Arguments(argc, argv);
    std::reverse(words.begin(), words.end());
    app.parse(std::move(words));
    const auto guard = Apply(arguments.common);
    Session session(guard);
    return Run(session, guard, app, arguments);
  } catch (const CLI::ParseError& end) {
    return Report_Parse_End(plain, app, end);
  } catch (const Usage_Error& error) {
    plain.error(error.what(), error.detail());
    return Outcome::wrong_usage;
  }
}

}  // namespace

int Run_Command_Line(int argc, char** argv) {
  Prepare_Process();
  try {
    return static_cast<int>(Parse_And_Run(argc, argv));
  } catch (const Output_Closed&) {
    return static_cast<int>(Outcome::success);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "error: %s\n", fault.what());
    return static_cast<int>(Outcome::failed_calculation);
  }
}

}  // namespace quorvex
