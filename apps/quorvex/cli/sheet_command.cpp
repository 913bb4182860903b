// `quorvex sheet`: a worksheet from a CSV file, calculated.
#include "cli/sheet_command.h"

#include <sstream>
#include <stdexcept>

#include "cli/progress_bar.h"
#include "formula/formula.h"
#include "formula/reference.h"
#include "host/run_time_failure.h"
#include "sheet/csv.h"
#include "sheet/grid.h"
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
    Save_Csv(options.output, sheet);
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

Outcome Calculate_Sheet(Session& session, const Sheet_Options& options) {
  Workbook book;
  Worksheet& sheet = book.add("Sheet1");
  Load_Csv(options.file, sheet);
  for (const std::string& definition : options.names) Define_Name(sheet, definition);
  try {
    Progress_Bar bar("Calculating");
    session.guard().begin_call();
    book.recalculate(session.engine(),
                     [&bar](std::size_t done, std::size_t all) { bar.show(done, all); });
  } catch (const Run_Time_Failure& failure) {
    session.error(options.file + ": " + failure.what());
    return Outcome::failed_calculation;
  }
  Show_Sheet(session, sheet, options);
  return Report_Problems(session, options.file, sheet);
}

}  // namespace quorvex
