// A worksheet from a CSV file that is open in the embedded spreadsheet.
#include "cli/open_sheet.h"

#include <sstream>
#include <stdexcept>

#include "formula/formula.h"
#include "formula/reference.h"
#include "host/run_time_failure.h"
#include "io/paths.h"
#include "io/progress_bar.h"
#include "sheet/csv.h"
#include "sheet/grid.h"
#include "sheet/recalculate.h"
#include "sheet/workbook.h"

namespace quorvex {
namespace {

// A fault in the first row of a long column is a fault in all of them.
constexpr std::size_t most_problems = 50;

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
  for (const auto& [address, cell] : sheet.cells()) {
    const Cell_Problem* problem = cell.trouble();
    if (problem == nullptr || ++count > most_problems) continue;
    Report(session, file + ": " + Address_Text(address) + ": ", cell, *problem);
  }
  if (count > most_problems) {
    session.error(file + ": and " + std::to_string(count - most_problems) +
                  " more cells with problems");
  }
  return count > 0 ? Outcome::failed_calculation : Outcome::success;
}

// The grid goes out before what is said about its cells.
void Show_Sheet(Session& session, const Worksheet& sheet, const Sheet_Options& options) {
  if (!options.output.empty() && options.output != "-") {
    Save_Csv(Path_Of(options.output), sheet);
    return;
  }
  std::ostringstream text;
  if (options.output == "-") {
    Write_Csv(text, sheet);
  } else {
    Print_Grid(text, sheet, {.width_limit = options.width});
  }
  session.output().buffer() += text.str();
  session.output().flush();
}

}  // namespace

Open_Sheet::Open_Sheet(Session& session, Sheet_Options options)
    : session_(session), options_(std::move(options)) {}

Outcome Open_Sheet::load() {
  auto book = std::make_shared<Workbook>();
  Worksheet& sheet = book->add("Sheet1");
  Load_Csv(Path_Of(options_.file), sheet);
  for (const std::string& definition : options_.names) Define_Name(sheet, definition);
  sheet_ = &sheet;
  application_ = std::make_shared<Sheet_Application>();
  application_->open(book);
  session_.engine().SetExcelApp(application_);
  return calculate(
      [&](const Progress& progress) { Recalculate_All(*book, session_.engine(), progress); });
}

Outcome Open_Sheet::update() {
  if (!application_->is_written()) return Outcome::success;
  return calculate(
      [&](const Progress& progress) { application_->calculate(session_.engine(), progress); });
}

Outcome Open_Sheet::calculate(const std::function<void(const Progress&)>& work) {
  try {
    Progress_Bar bar("Calculating");
    session_.guard().begin_call();
    work([&bar](std::size_t done, std::size_t all) { bar.show(done, all); });
  } catch (const Run_Time_Failure& failure) {
    session_.error(options_.file + ": " + failure.what());
    return Outcome::failed_calculation;
  }
  Show_Sheet(session_, *sheet_, options_);
  return Report_Problems(session_, options_.file, *sheet_);
}

}  // namespace quorvex
