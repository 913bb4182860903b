// The commands and options of the tool, with their help.
#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/sizes.h"
#include "quorvex_version.h"

namespace quorvex {
namespace {

constexpr const char* examples =
    "Examples:\n"
    "  quorvex 'qvxADD(\"12345678901234567890.5\", 1.25)'\n"
    "  quorvex '100 * 1.05^30'\n"
    "  quorvex -d 30 - < formulas.txt\n"
    "  quorvex --sheet prices.csv 'qvxSUM2(B2:B99)'\n"
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
  return text == "0" ? "" : Check_Whole(text, 1'000'000'000);
}

// Nothing for what can't stand between cells.
std::optional<char> Separator(const std::string& name) {
  if (name == "comma") return ',';
  if (name == "semicolon") return ';';
  if (name == "tab" || name == "\\t") return '\t';
  const bool is_mark =
      name.size() == 1 && (name[0] == '\t' || (name[0] >= ' ' && name[0] <= '~')) && name[0] != '"';
  return is_mark ? std::optional(name[0]) : std::nullopt;
}

std::string Check_Separator(const std::string& text) {
  return Separator(text) ? "" : "comma, semicolon, tab or one character is needed, not " + text;
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
  sheet
      ->add_option("file", arguments.sheet.file,
                   "CSV file, or - for standard input; cells that begin with = are formulas")
      ->type_name("")
      ->required();
  sheet
      ->add_option("-o,--output", arguments.sheet.output,
                   "Write the values as CSV to this file (- for standard output)")
      ->type_name("FILE");
  sheet->add_option("--name", arguments.sheet.names, "Define a name for a cell, range or formula")
      ->type_name("NAME=REFERENCE")
      ->allow_extra_args(false);
  sheet->add_flag("--formulas", arguments.sheet.formulas,
                  "Write CSV with the formulas instead of their values");
  sheet->add_flag("--force", arguments.sheet.force,
                  "Let -o write onto the worksheet itself, whose formulas are then gone");
  sheet
      ->add_option_function<std::string>(
          "--separator",
          [&arguments](const std::string& name) { arguments.sheet.separator = Separator(name); },
          "What stands between cells; without it, the header and the rows below it tell")
      ->type_name("comma|semicolon|tab|CHARACTER")
      ->check(CLI::Validator(Check_Separator, ""));
  sheet
      ->add_option("--width", arguments.sheet.width,
                   "Cut printed values to so many characters; 0 cuts none, even on a terminal")
      ->type_name("N")
      ->check(CLI::Validator(Check_Width, ""));
  sheet->add_flag("--watch", arguments.sheet.watch,
                  "Go on until Ctrl-C, and show the worksheet anew when the file changes or "
                  "another default limit is stored");
  Add_Common_Options(*sheet, arguments.common);
  sheet->footer(
      "A formula with a comma or a quote mark stands in quote marks, and those in it are doubled:\n"
      "  item,price,total\n"
      "  tea,2.50,=B2*12\n"
      "  milk,1.20,\"=qvxROUND(B3*1.19, 2)\"\n"
      "  both,,\"=IF(C2>C3, \"\"tea\"\", \"\"milk\"\")\"\n"
      "An apostrophe in front makes text of what follows: '=B2. A line that begins with \"# \" is "
      "a\n"
      "note. With -o, cells that hold no formula stay as they were typed, but text that another\n"
      "spreadsheet would take for a formula gets an apostrophe.\n"
      "Example:\n  quorvex sheet prices.csv --name rates=B2:B13 -o calculated.csv");
}

void Describe_Functions(CLI::App& app, Arguments& arguments) {
  auto* functions =
      app.add_subcommand("functions", "List the functions, explain one, or look for some");
  auto* name = functions->add_option(
      "name", arguments.function,
      "The function to explain (root for qvxROOT), or words to look for (logarithm)");
  name->type_name("");
  functions->add_flag("--programs", arguments.programs,
                      "The methods for programs, which formulas can't call");
  functions->add_flag("--markdown", arguments.markdown, "Write the reference of all functions")
      ->excludes(name);
}

void Add_Size_Option(CLI::App& command, const char* name, std::size_t& bytes, const char* help) {
  command
      .add_option_function<std::string>(
          name,
          [&bytes](const std::string& size) {
            constexpr double most = 1e18;
            bytes = static_cast<std::size_t>(std::min(Bytes_Of(size).value_or(0), most));
          },
          help)
      ->type_name("SIZE")
      ->check(CLI::Validator(Check_Size, ""));
}

void Describe_Batch(CLI::App& app, Arguments& arguments) {
  auto* batch = app.add_subcommand("batch", "Answer calls in JSON, a line each");
  batch->add_option("--jobs", arguments.jobs, "Processes that calculate at once")
      ->type_name("N")
      ->check(CLI::Validator(Check_Jobs, ""));
  Add_Size_Option(*batch, "--max-line", arguments.longest_line,
                  "Call a longer line invalid, and go on (64M where nothing else is said)");
  Add_Size_Option(*batch, "--max-answer", arguments.longest_answer,
                  "Answer with failure 7 where the answer would be longer (64M as well)");
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

}  // namespace

void Describe(CLI::App& app, Arguments& arguments) {
  app.set_version_flag("--version", std::string("quorvex ") + version);
  app.add_option("formula", arguments.formulas,
                 "Formulas to calculate; - reads them from standard input")
      ->type_name("");
  app.add_option("--sheet", arguments.worksheet,
                 "A CSV file whose cells the formulas can use, as B2 or A1:A9; it is calculated "
                 "before")
      ->type_name("FILE");
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

}  // namespace quorvex
