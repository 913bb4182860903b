// The prompt: formulas and a few words of command, typed on a terminal.
#include "cli/prompt.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

#include "cli/formulas.h"
#include "cli/help/function_reference.h"
#include "cli/open_sheet.h"
#include "cli/settings_command.h"
#include "cli/terminal_face.h"
#include "formula/literals.h"
#include "frame/catalogue.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/interrupts.h"
#include "quorvex_version.h"
#include "sheet/csv.h"
#include "shell/show_forms.h"

namespace quorvex {
namespace {

constexpr std::string_view prompt_help =
    "Type a formula, as in a spreadsheet:  qvxADD(\"12345678901234567890.5\", 1.25)\n"
    "  functions    lists all functions\n"
    "  help NAME    explains one of them; so does functions NAME\n"
    "  sheet FILE   opens a worksheet, a CSV file, and calculates it; sheet alone does so again\n"
    "  settings     changes the default limit of significant digits; so does settings max-sd N\n"
    "  about        tells what Quorvex is\n"
    "  quit         leaves; so do exit and Ctrl-D\n"
    "Tab completes names, arrow keys go back to earlier lines, and Ctrl-C ends a calculation.\n";

constexpr std::array<std::string_view, 7> commands = {"about", "exit",     "functions", "help",
                                                      "quit",  "settings", "sheet"};

std::filesystem::path History_File() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && *state == '/') return std::filesystem::path(state) / "quorvex/history";
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') return {};
  return std::filesystem::path(home) / ".local/state/quorvex/history";
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const auto begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

void Explain(Session& session, std::string_view name) {
  if (const auto help = Function_Help(session.engine(), name)) {
    session.output().buffer() += *help;
    session.output().flush();
  } else {
    session.error(No_Such_Function(name));
  }
}

// A file that can't be opened leaves the worksheet that is open.
void Open(Session& session, std::string_view file, std::unique_ptr<Open_Sheet>& sheet) {
  if (!file.empty()) {
    Sheet_Options options;
    options.file = file;
    auto opened = std::make_unique<Open_Sheet>(session, std::move(options));
    opened->load();
    sheet = std::move(opened);
  } else if (sheet != nullptr) {
    sheet->load();
  } else {
    session.error("no worksheet is open; \"sheet FILE\" opens one");
  }
}

// "max-sd" and "max-sd N" do what they do on the command line.
Settings_Words Words_Of(std::string_view rest) {
  const std::string_view name = rest.substr(0, rest.find(' '));
  const std::string_view value = Trimmed(rest.substr(name.size()));
  Settings_Words words;
  words.name = name;
  if (!value.empty()) words.value = value;
  return words;
}

void Open_Settings(Session& session, std::string_view rest,
                   const std::unique_ptr<Open_Sheet>& sheet) {
  if (!rest.empty()) {
    Run_Settings(session, Words_Of(rest));
    return;
  }
  Show_MaxSD();
  session.output().flush();
  if (sheet != nullptr) sheet->update();
}

void Obey_Word(Session& session, std::string_view line, std::unique_ptr<Open_Sheet>& sheet) {
  const std::string_view word = line.substr(0, line.find(' '));
  const std::string_view rest = Trimmed(line.substr(word.size()));
  const bool is_help = Same_Word(word, "help") || word == "?";
  if ((is_help || Same_Word(word, "functions")) && !rest.empty()) {
    Explain(session, rest);
  } else if (is_help || Same_Word(word, "functions")) {
    session.output().buffer() += is_help ? std::string(prompt_help) : Function_List();
  } else if (Same_Word(word, "sheet")) {
    Open(session, rest, sheet);
  } else if (Same_Word(word, "settings")) {
    Open_Settings(session, rest, sheet);
  } else if (Same_Word(line, "about")) {
    session.engine().qvxABOUT();
  } else {
    Calculate(session, line);
  }
  session.output().flush();
}

void Obey(Session& session, std::string_view line, std::unique_ptr<Open_Sheet>& sheet) {
  try {
    Obey_Word(session, line, sheet);
  } catch (const Usage_Error& error) {
    session.error(error.what(), error.detail());
  } catch (const File_Error& error) {
    session.error(error.what());
  } catch (const Run_Time_Failure& failure) {
    session.error(failure.what());
  }
}

bool Is_Word_Character(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9') || character == '_';
}

bool Begins_Like(std::string_view name, std::string_view typed) {
  return name.size() >= typed.size() && Same_Word(name.substr(0, typed.size()), typed);
}

std::vector<std::string> Candidates(std::string_view word, std::string_view before_word) {
  const bool is_first = before_word.empty();
  const bool is_help = Same_Word(before_word, "help") || Same_Word(before_word, "functions");
  std::vector<std::string> candidates;
  if (Same_Word(before_word, "settings")) {
    if (Begins_Like("max-sd", word)) candidates.emplace_back("max-sd ");
    return candidates;
  }
  if (is_first) {
    for (const std::string_view command : commands)
      if (Begins_Like(command, word)) candidates.emplace_back(command);
  }
  for (const Method& method : Catalogue()) {
    if (Begins_Like(method.name, word))
      candidates.push_back(std::string(method.name) + (is_help ? "" : "("));
  }
  return candidates;
}

std::string Common_Beginning(const std::vector<std::string>& texts) {
  std::string common = texts.front();
  for (const std::string& text : texts) {
    const auto differs = std::mismatch(common.begin(), common.end(), text.begin(), text.end());
    common.erase(differs.first, common.end());
  }
  return common;
}

// What completes the word to the only candidate, or as far as all of them agree.
Completion Completion_Of(std::string_view word, std::vector<std::string> candidates) {
  Completion completion;
  completion.typed = word.size();
  if (candidates.empty()) return completion;
  completion.replacement = Common_Beginning(candidates);
  // Names that differ in their first letters leave the word as it was typed.
  if (completion.replacement.size() < word.size()) completion.replacement = word;
  if (candidates.size() > 1) completion.candidates = std::move(candidates);
  return completion;
}

}  // namespace

Completion Complete_Word(std::string_view before_cursor) {
  std::size_t begin = before_cursor.size();
  while (begin > 0 && Is_Word_Character(before_cursor[begin - 1])) --begin;
  const std::string_view word = before_cursor.substr(begin);
  const std::string_view before_word = Trimmed(before_cursor.substr(0, begin));
  return Completion_Of(word, Candidates(word, before_word));
}

Outcome Run_Prompt(Session& session) {
  session.engine();  // tells what is wrong with the settings
  const auto face = std::make_shared<Terminal_Face>(session);
  Set_Form_Face(face);
  Catch_Interrupts();
  session.output().write_line(std::string("Quorvex ") + version +
                              R"(. Type a formula, "help" or "quit".)");
  session.output().flush();
  Line_Editor editor("> ", History_File(), &Complete_Word);
  std::unique_ptr<Open_Sheet> sheet;
  std::string line;
  for (;;) {
    Current_Platform().timers->run_due();
    const auto status = editor.read(line);
    if (status == Line_Editor::Status::interrupted) continue;
    if (status == Line_Editor::Status::end) {
      session.output().write_line("");
      break;
    }
    const std::string_view typed = Trimmed(line);
    if (typed.empty()) continue;
    editor.remember(std::string(typed));
    if (Same_Word(typed, "quit") || Same_Word(typed, "exit")) break;
    Obey(session, typed, sheet);
    if (sheet != nullptr) face->note_open_sheet();
  }
  session.output().flush();
  return Outcome::success;
}

}  // namespace quorvex
