// A worksheet from a CSV file that is open in the embedded spreadsheet.
#include "cli/open_sheet.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/quiet_face.h"
#include "formula/formula.h"
#include "formula/reference.h"
#include "formula/visible.h"
#include "host/run_time_failure.h"
#include "io/input_file.h"
#include "io/paths.h"
#include "io/progress_bar.h"
#include "io/terminal_width.h"
#include "sheet/csv.h"
#include "sheet/grid.h"
#include "sheet/recalculate.h"
#include "sheet/workbook.h"
#include "text/options.h"

namespace quorvex {
namespace {

// A fault in the first row of a long column is a fault in all of them.
constexpr std::size_t most_problems = 50;

std::string Count_Of(std::size_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

void Define_Name(Worksheet& sheet, const std::string& definition) {
  const auto equals = definition.find('=');
  if (equals == std::string::npos)
    throw Usage_Error("--name takes NAME=REFERENCE, not \"" + definition + "\"");
  const std::string name = definition.substr(0, equals);
  const std::string refers_to = definition.substr(equals + 1);
  try {
    sheet.define_name(name, refers_to);
  } catch (const Syntax_Error& syntax) {
    throw Usage_Error("--name " + name + ": " + syntax.what(),
                      Marked_Lines(refers_to, syntax.position()));
  } catch (const std::invalid_argument& invalid) {
    throw Usage_Error("--name " + name + ": " + invalid.what());
  }
}

void Report(Session& session, const std::string& place, const Cell& cell,
            const Cell_Problem& problem) {
  if (problem.kind == Cell_Problem::Kind::syntax) {
    session.error_at(place + problem.message, cell.typed, problem.position);
  } else {
    session.error(place + problem.message);
  }
}

Outcome Report_Problems(Session& session, const std::string& file, const Worksheet& sheet) {
  std::size_t count = 0;
  Outcome outcome = Outcome::success;
  for (const auto& [address, cell] : sheet.cells()) {
    if (cell.has_failed()) outcome = Outcome::failed_calculation;
    const Cell_Problem* problem = cell.trouble();
    if (problem == nullptr || ++count > most_problems) continue;
    Report(session, file + ": " + Address_Text(address) + ": ", cell, *problem);
  }
  if (count > most_problems) {
    session.error(file + ": and " + Count_Of(count - most_problems, "more cell") +
                  " with problems");
  }
  return outcome;
}

// What cells have in common: the cause, behind what tells of the value.
std::string_view Cause_In(std::string_view note) {
  const auto colon = note.rfind(": ");
  return colon == std::string_view::npos ? note : note.substr(colon);
}

// A column of formulas alike has notes alike: each is told once, with the count of the others.
void Report_Notes(Session& session, const std::string& file, const Worksheet& sheet) {
  std::vector<std::pair<Cell_Address, const std::string*>> first;
  std::map<std::string_view, std::size_t> counts;
  for (const auto& [address, cell] : sheet.cells()) {
    if (!cell.calculation || !cell.calculation->notes) continue;
    for (const std::string& note : *cell.calculation->notes)
      if (++counts[Cause_In(note)] == 1) first.emplace_back(address, &note);
  }
  const std::size_t told = std::min(first.size(), most_problems);
  for (std::size_t at = 0; at < told; ++at) {
    const auto& [address, note] = first[at];
    const std::size_t others = counts[Cause_In(*note)] - 1;
    session.note(file + ": " + Address_Text(address) + ": " + *note +
                 (others > 0 ? " (and " + Count_Of(others, "more such cell") + ")" : ""));
  }
  if (first.size() > told)
    session.note(file + ": and " + Count_Of(first.size() - told, "more note"));
}

}  // namespace

Open_Sheet::Open_Sheet(Session& session, Sheet_Options options)
    : session_(session), options_(std::move(options)) {}

void Open_Sheet::check_output() const {
  if (options_.force || options_.output.empty() || options_.output == "-") return;
  const std::filesystem::path output = Path_Of(options_.output);
  std::error_code is_elsewhere;
  const bool is_itself = options_.file == "-" ? Is_Input(output)
                                              : std::filesystem::equivalent(Path_Of(options_.file),
                                                                            output, is_elsewhere);
  if (!is_itself || is_elsewhere) return;
  throw Usage_Error(
      options_.output + " is the worksheet itself, and would hold values instead of its formulas",
      "Write to another file, or give --force.");
}

// The grid goes out before what is said about its cells.
void Open_Sheet::show() const {
  const Csv_Content content = options_.formulas ? Csv_Content::formulas : Csv_Content::values;
  if (!options_.output.empty() && options_.output != "-") {
    Save_Csv(Path_Of(options_.output), *sheet_, form_, content);
    return;
  }
  const auto terminal = Terminal_Width();
  std::ostringstream text;
  bool is_whole = true;
  if (options_.output == "-" || options_.formulas) {
    Write_Csv(text, *sheet_, form_, content);
  } else {
    Grid_Options grid;
    grid.width_limit = options_.width.value_or(0);
    if (!options_.width) grid.total_width = terminal.value_or(0);
    is_whole = Print_Grid(text, *sheet_, grid);
  }
  session_.output().buffer() += For_Output(text.str(), terminal.has_value());
  session_.output().flush();
  if (!is_whole) {
    session_.hint(
        "Columns are shortened to fit the terminal (\u2026); --width 0 shows all, and so "
        "does -o FILE.");
  }
}

Outcome Open_Sheet::load() {
  check_output();
  session_.guard().begin_call();
  auto book = std::make_shared<Workbook>();
  book->set_explains(session_.is_quiet() ? Explain::no : options_.explain);
  Worksheet& sheet = book->add("Sheet1");
  form_ = Load_Csv(Path_Of(options_.file), sheet, options_.separator);
  for (const std::string& definition : options_.names) Define_Name(sheet, definition);
  sheet_ = &sheet;
  application_ = std::make_shared<Sheet_Application>();
  application_->open(book);
  session_.engine().SetExcelApp(application_);
  return calculate(
      [&](const Progress& progress) { Recalculate_All(*book, session_.engine(), progress); });
}

// Operators calculate at the default limit as well, and hosts are told of functions alone.
Outcome Open_Sheet::update() {
  if (Default_MaxSD() != limit_) application_->mark_all_stale();
  if (!application_->is_written()) return Outcome::success;
  return calculate(
      [&](const Progress& progress) { application_->calculate(session_.engine(), progress); });
}

Outcome Open_Sheet::calculate(const std::function<void(const Progress&)>& work) {
  limit_ = Default_MaxSD();
  try {
    // What a file holds is no wish of the user to see a dialog.
    const Closed_Forms closed;
    Progress_Bar bar("Calculating");
    session_.guard().begin_call();
    work([&](std::size_t done, std::size_t all) {
      session_.guard().begin_formula();
      bar.show(done, all);
    });
  } catch (const Run_Time_Failure& failure) {
    session_.error(file_name() + ": " + failure.what());
    return Outcome::failed_calculation;
  }
  if (!options_.silent) show();
  const Outcome outcome = Report_Problems(session_, file_name(), *sheet_);
  Report_Notes(session_, file_name(), *sheet_);
  return outcome;
}

}  // namespace quorvex
