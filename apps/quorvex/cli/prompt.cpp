// The prompt: formulas and a few words of command, typed on a terminal.
#include "cli/prompt.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "cli/formulas.h"
#include "cli/help/function_reference.h"
#include "cli/open_sheet.h"
#include "cli/prompt_names.h"
#include "cli/settings_command.h"
#include "cli/terminal_face.h"
#include "formula/find_function.h"
#include "formula/lexer.h"
#include "formula/literals.h"
#include "formula/visible.h"
#include "frame/catalogue.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "io/interrupts.h"
#include "quorvex_version.h"
#include "sheet/csv.h"
#include "shell/frmMaxSD.h"
#include "shell/show_forms.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::string_view prompt_help =
    "Type a formula, as in a spreadsheet:  100 * 1.05^30  or  qvxROOT(2, 2, , , , , 50)\n"
    "  ans          is the last result; a line like  rate = 0.05  gives a name to one\n"
    "  digits N     shows N digits of results from now on, as long as this prompt is open\n"
    "  functions    lists all functions; functions WORDS those that tell of the words\n"
    "  help NAME    explains one of them: help root, help qvxROOT\n"
    "  sheet FILE   opens a worksheet, a CSV file, and calculates it; formulas can then use its\n"
    "               cells, as B2 or A1:A9. sheet alone does so again\n"
    "  settings     changes the default limit of significant digits; so does settings max-sd N\n"
    "  about        tells what Quorvex is\n"
    "  quit         leaves; so do exit and Ctrl-D\n"
    "Tab completes names and files, arrow keys go back to earlier lines, and Ctrl-C ends a\n"
    "calculation.\n";

constexpr std::array<std::string_view, 8> commands = {"about", "digits", "exit",     "functions",
                                                      "help",  "quit",   "settings", "sheet"};

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

// Names with blanks are put in quote marks out of habit.
std::string_view Unquoted_File(std::string_view file) {
  const bool is_quoted = file.size() > 2 && file.front() == file.back() &&
                         (file.front() == '"' || file.front() == '\'');
  return is_quoted ? file.substr(1, file.size() - 2) : file;
}

void Explain_Function(Session& session, std::string_view name) {
  if (const auto help = Function_Help(session.engine(), name)) {
    session.output().buffer() += *help;
    session.output().flush();
  } else {
    session.error(No_Such_Function(name));
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

class Prompt {
 public:
  explicit Prompt(Session& session)
      : session_(session), names_([this] { return sheet_ ? sheet_->worksheet() : nullptr; }) {}

  void obey(std::string_view line) {
    try {
      obey_word(line);
    } catch (const Usage_Error& error) {
      session_.error(error.what(), error.detail());
    } catch (const File_Error& error) {
      session_.error(error.what());
    } catch (const Run_Time_Failure& failure) {
      session_.error(failure.what());
    } catch (const Output_Closed&) {
      throw;
    } catch (const std::exception& fault) {
      session_.error(fault.what());
    }
  }

  bool has_sheet() const { return sheet_ != nullptr; }

 private:
  void obey_word(std::string_view line) {
    const std::string_view word = line.substr(0, line.find(' '));
    const std::string_view rest = Trimmed(line.substr(word.size()));
    const bool is_help = Same_Word(word, "help") || word == "?";
    // A line like "digits = 5" gives a name.
    if (rest.starts_with('=')) return calculate(line);
    if ((is_help || Same_Word(word, "functions")) && !rest.empty()) {
      Explain_Function(session_, rest);
    } else if (is_help || Same_Word(word, "functions")) {
      session_.output().buffer() += is_help ? std::string(prompt_help) : Function_List();
    } else if (Same_Word(word, "sheet")) {
      open(rest);
    } else if (Same_Word(word, "settings")) {
      open_settings(rest);
    } else if (Same_Word(word, "digits")) {
      set_digits(rest);
    } else if (Same_Word(line, "about")) {
      session_.engine().qvxABOUT();
    } else {
      calculate(line);
    }
    session_.output().flush();
  }

  void calculate(std::string_view line) {
    const std::string_view word = line.substr(0, Word_Length(line));
    const std::string_view rest = Trimmed(line.substr(word.size()));
    if (Same_Word(word, Prompt_Names::last_result) && rest.starts_with('=')) {
      session_.error("ans is the last result, and can't be given another value");
      return;
    }
    const auto [name, formula] = Read_Definition(line);
    HostValue result;
    Formulas(session_, &names_, Explain::at_prompt)
        .calculate(name.empty() ? line : formula, {}, &result);
    session_.output().flush();
    if (result.is_missing()) return;
    if (!name.empty()) names_.set(name, result);
    names_.set_last_result(result);
  }

  // A file that can't be opened leaves the worksheet that is open.
  void open(std::string_view file) {
    if (!file.empty()) {
      Sheet_Options options;
      options.file = Unquoted_File(file);
      options.explain = Explain::at_prompt;
      auto opened = std::make_unique<Open_Sheet>(session_, std::move(options));
      opened->load();
      sheet_ = std::move(opened);
    } else if (sheet_ != nullptr) {
      sheet_->load();
    } else {
      session_.error("no worksheet is open; \"sheet FILE\" opens one");
    }
  }

  void open_settings(std::string_view rest) {
    if (!rest.empty()) {
      Run_Settings(session_, Words_Of(rest));
      return;
    }
    Show_MaxSD();
    session_.output().flush();
    if (sheet_ != nullptr) sheet_->update();
  }

  // For as long as this prompt is open; "settings" stores a limit.
  void set_digits(std::string_view digits) {
    session_.engine();
    if (digits.empty()) {
      session_.output().write_line(Number_To_Text(Default_MaxSD()));
    } else if (MaxSD_Problem(std::string(digits)) || Text_To_Number(digits) < 1) {
      session_.error("digits takes a whole number from 1 to 2147483648, as in \"digits 50\"");
    } else {
      Set_Default_MaxSD(Text_To_Number(digits));
    }
  }

  Session& session_;
  std::unique_ptr<Open_Sheet> sheet_;
  Prompt_Names names_;
};

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
    if (Is_Worksheet_Function(method) && Begins_Like(method.name, word))
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

// The file or folder that a path begins like.
Completion Complete_File(std::string_view typed) {
  const std::filesystem::path path(typed);
  const std::string begun = path.filename().string();
  const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
  std::vector<std::string> candidates;
  std::error_code unreadable;
  for (const auto& entry : std::filesystem::directory_iterator(folder, unreadable)) {
    std::string name = entry.path().filename().string();
    const bool is_hidden = name.starts_with('.') && begun.empty();
    if (is_hidden || !name.starts_with(begun) || Visible(name) != name) continue;
    std::error_code unknown;
    if (entry.is_directory(unknown)) name += '/';
    candidates.push_back(std::move(name));
  }
  std::sort(candidates.begin(), candidates.end());
  return Completion_Of(begun, std::move(candidates));
}

}  // namespace

Completion Complete_Word(std::string_view before_cursor) {
  constexpr std::string_view opening = "sheet ";
  if (Same_Word(before_cursor.substr(0, opening.size()), opening))
    return Complete_File(before_cursor.substr(opening.size()));
  std::size_t begin = before_cursor.size();
  while (begin > 0 && Is_Word_Character(before_cursor[begin - 1])) --begin;
  const std::string_view word = before_cursor.substr(begin);
  const std::string_view before_word = Trimmed(before_cursor.substr(0, begin));
  return Completion_Of(word, Candidates(word, before_word));
}

Outcome Run_Prompt(Session& session, const std::optional<std::string>& worksheet) {
  session.engine();  // tells what is wrong with the settings
  const auto face = Show_Forms(session);
  std::deque<std::string> typed_ahead;  // at a question, and for something else
  face->set_taker([&](std::string line) { typed_ahead.push_back(std::move(line)); });
  Catch_Interrupts();
  session.output().write_line(std::string("Quorvex ") + version +
                              R"(. Type a formula, "help" or "quit".)");
  session.output().flush();
  Line_Editor editor("> ", History_File(), &Complete_Word);
  Prompt prompt(session);
  if (worksheet) prompt.obey("sheet " + *worksheet);
  std::string line;
  for (;;) {
    Current_Platform().timers->run_due();
    if (!typed_ahead.empty()) {
      line = std::move(typed_ahead.front());
      typed_ahead.pop_front();
      session.output().write_line("> " + Visible(line));
    } else {
      const auto status = editor.read(line);
      if (status == Line_Editor::Status::interrupted) continue;
      if (status == Line_Editor::Status::end) {
        session.output().write_line("");
        break;
      }
    }
    const std::string_view typed = Trimmed(line);
    if (typed.empty()) continue;
    editor.remember(std::string(typed));
    if (Same_Word(typed, "quit") || Same_Word(typed, "exit")) break;
    prompt.obey(typed);
    if (prompt.has_sheet()) face->note_open_sheet();
  }
  session.output().flush();
  face->set_taker({});
  return Outcome::success;
}

}  // namespace quorvex
