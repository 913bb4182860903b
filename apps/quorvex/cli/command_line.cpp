// The command line of the tool.
#include "cli/command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "batch/answer.h"
#include "batch/serve.h"
#include "cli/arguments.h"
#include "cli/formulas.h"
#include "cli/help/function_page.h"
#include "cli/help/function_reference.h"
#include "cli/help/manual_page.h"
#include "cli/help/shell_completion.h"
#include "cli/open_sheet.h"
#include "cli/prompt.h"
#include "cli/prompt_names.h"
#include "cli/quiet_face.h"
#include "cli/session.h"
#include "cli/settings_command.h"
#include "cli/sheet_command.h"
#include "cli/terminal_face.h"
#include "formula/visible.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/attended.h"
#include "io/process.h"
#include "sheet/csv.h"

namespace quorvex {
namespace {

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
    is_value = argument == "-d" || argument == "-o" ||
               (argument.starts_with("--") && argument.find('=') == std::string::npos);
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
    out += arguments.programs ? Program_Method_List() : Function_List();
  } else {
    std::string words;
    for (const std::string& word : arguments.function) words += (words.empty() ? "" : " ") + word;
    const auto help = Function_Help(session.engine(), words,
                                    arguments.programs ? Functions::all : Functions::of_worksheets);
    if (!help) throw Usage_Error(No_Such_Function(words));
    out += *help;
  }
  return Outcome::success;
}

Outcome Run_Batch(Session& session, const std::shared_ptr<Call_Guard>& guard,
                  const Arguments& arguments) {
  Show_No_Forms();   // answers stand alone on the output
  session.engine();  // tells what is wrong with the settings
  Answerer answerer(guard, arguments.longest_answer);
  const Answer_Function answer = [&answerer](std::string& out, std::string_view line) {
    answerer.append_answer(out, line);
  };
  Batch_Bounds bounds;
  bounds.longest_line = arguments.longest_line;
  if (arguments.jobs > 1) {
    Serve_In_Parallel(STDIN_FILENO, STDOUT_FILENO, arguments.jobs, answer, bounds);
  } else {
    Serve(STDIN_FILENO, STDOUT_FILENO, answer, bounds);
  }
  return Outcome::success;
}

std::string Hint_For_Word(std::string_view word) {
  if (word == "help" || word == "version")
    return "\"quorvex --" + std::string(word) + "\" tells that.";
  return "The commands are sheet, functions, batch, settings and about; \"quorvex --help\" tells "
         "more.";
}

// A word alone was probably meant as a command.
Outcome Calculate_Arguments(Session& session, Formulas& formulas,
                            const std::vector<std::string>& arguments) {
  const Outcome outcome = formulas.calculate_all(arguments);
  const std::string& first = arguments.front();
  if (outcome == Outcome::wrong_usage && !first.empty() &&
      std::all_of(first.begin(), first.end(), Is_Letter)) {
    session.hint(Hint_For_Word(first));
  } else if (outcome == Outcome::wrong_usage && first.ends_with(".csv")) {
    session.hint("A worksheet is calculated with: quorvex sheet " + Visible(first));
  }
  return outcome;
}

// Formulas can open forms: those that the user types, and where the results don't go to a file or
// another program.
void Choose_Face(Session& session, bool are_typed) {
  if (are_typed && Is_Terminal(STDOUT_FILENO)) {
    Show_Forms(session);
  } else {
    Show_No_Forms();
  }
}

Outcome Run_Formulas(Session& session, const Arguments& arguments) {
  const bool is_piped =
      std::ranges::count(arguments.formulas, "-") > 0 || arguments.formulas.empty();
  Choose_Face(session, !is_piped || Is_Terminal(STDIN_FILENO));
  const bool is_dialogue = Is_Terminal(STDIN_FILENO) && Is_Terminal(STDOUT_FILENO);
  if (arguments.formulas.empty() && is_dialogue) return Run_Prompt(session, arguments.worksheet);
  std::optional<Open_Sheet> sheet;
  Outcome outcome = Outcome::success;
  if (arguments.worksheet) {
    Sheet_Options options;
    options.file = *arguments.worksheet;
    options.silent = true;
    sheet.emplace(session, std::move(options));
    outcome = sheet->load();
  }
  Prompt_Names names([&] { return sheet ? sheet->worksheet() : nullptr; });
  Formulas formulas(session, sheet ? &names : nullptr);
  return Worse_Of(outcome, arguments.formulas.empty()
                               ? formulas.calculate_input()
                               : Calculate_Arguments(session, formulas, arguments.formulas));
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
    Show_No_Forms();
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

// Files and other programs may ask for what nobody waits for; who types a formula can break it off.
double Usual_Timeout(const CLI::App& app) {
  constexpr double seconds = 60;
  const bool asks_for_others =
      app.got_subcommand("batch") || app.got_subcommand("sheet") || app.count("--sheet") > 0;
  return asks_for_others ? seconds : 0;
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
    const auto guard = Apply(arguments.common, Usual_Timeout(app));
    Session session(guard);
    session.set_quiet(arguments.common.quiet);
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
  } catch (const std::bad_alloc&) {
    std::fputs("error: There is not enough memory.\n", stderr);
    return static_cast<int>(Outcome::failed_calculation);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "error: %s\n", Visible(fault.what()).c_str());
    return static_cast<int>(Outcome::failed_calculation);
  }
}

}  // namespace quorvex
