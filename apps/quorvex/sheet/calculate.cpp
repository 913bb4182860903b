#include "sheet/calculate.h"

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "formula/evaluate.h"
#include "host/run_time_failure.h"
#include "sheet/precedents.h"

namespace quorvex {

namespace {

class Sheet_References final : public Reference_Source {
 public:
  Sheet_References(const Workbook& workbook, const Calculation& calculation)
      : workbook_(workbook), calculation_(calculation) {}

  HostValue cells(const Reference& reference) override {
    const Worksheet* sheet = Sheet_Meant(workbook_, calculation_, reference.sheet);
    if (sheet == nullptr) return no_sheet(reference.sheet, reference.position);
    return Range_Of(*sheet, reference.area);
  }

  HostValue cell(const Reference& reference) override {
    const Worksheet* sheet = Sheet_Meant(workbook_, calculation_, reference.sheet);
    if (sheet == nullptr) return no_sheet(reference.sheet, reference.position);
    return sheet->value(reference.area.first);
  }

  HostValue name(const Name_Use& use) override {
    const Worksheet* sheet = Sheet_Meant(workbook_, calculation_, use.sheet);
    if (sheet == nullptr) return no_sheet(use.sheet, use.position);
    const Defined_Name* name = sheet->find_name(use.name);
    if (name != nullptr) return value_of(*name, use.position);
    note("there is no name \"" + use.name + "\"; text stands in double quotes", use.position);
    return Error_Code::name;
  }

  const std::optional<Cell_Problem>& problem() const { return problem_; }

 private:
  // Only cells show problems, so those of a name are shown where it is used.
  HostValue value_of(const Defined_Name& name, std::size_t position) {
    if (const Cell_Problem* problem = name.calculation->problem.get()) {
      note("the name \"" + name.name + "\": " + problem->message, position);
    }
    return name.calculation->value;
  }
  HostValue no_sheet(const std::string& sheet, std::size_t position) {
    note("there is no worksheet \"" + sheet + "\"", position);
    return Error_Code::reference;
  }
  void note(const std::string& message, std::size_t position) {
    if (problem_) return;
    problem_ = Cell_Problem{Cell_Problem::Kind::reference, message, position};
  }

  const Workbook& workbook_;
  const Calculation& calculation_;
  std::optional<Cell_Problem> problem_;
};

struct Outcome {
  HostValue value;
  std::optional<Cell_Problem> problem;
  HostValue spill = {};  // an array, whose other values go to the cells beside
  std::vector<std::string> notes = {};
};

Outcome Failed(const std::string& message) {
  return {Error_Code::value, Cell_Problem{Cell_Problem::Kind::failure, message}};
}

// What stands in the cell of the formula: of an array its first value, of a range the only one.
HostValue In_One_Cell(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::missing:
      return HostValue::Empty();
    case HostValue::Kind::number:
      return std::isfinite(value.number()) ? value : HostValue(Error_Code::number);
    case HostValue::Kind::array:
      return value.array().values.empty() ? HostValue::Empty()
                                          : In_One_Cell(value.array().values[0]);
    case HostValue::Kind::list:
      return Error_Code::value;
    case HostValue::Kind::range:
      return value.range().cell(1, 1);
    default:
      return value;
  }
}

Outcome Cell_Outcome(const Call_Result& result) {
  if (std::holds_alternative<Record>(result)) {
    return Failed("The function gives a record, which a cell can't hold.");
  }
  const auto* value = std::get_if<HostValue>(&result);
  if (value == nullptr) return {HostValue::Empty(), {}};
  if (value->kind() == HostValue::Kind::range && !Is_Single_Cell(*value)) {
    return Failed("The formula gives more than one cell, and a cell holds one value.");
  }
  const bool spills = value->kind() == HostValue::Kind::array && value->array().values.size() > 1;
  return {In_One_Cell(*value), {}, spills ? *value : HostValue()};
}

// A name may stand for a range, which the formulas that use it read.
Outcome Outcome_For(const Calculation& calculation, Evaluation evaluation) {
  const auto* value = std::get_if<HostValue>(&evaluation.result);
  const bool is_whole = !calculation.name.empty() && value != nullptr;
  Outcome outcome = is_whole ? Outcome{*value, {}} : Cell_Outcome(evaluation.result);
  if (!evaluation.reason.empty())
    outcome.problem = Cell_Problem{Cell_Problem::Kind::failure, evaluation.reason};
  outcome.notes = std::move(evaluation.notes);
  return outcome;
}

std::string Obstacle_Text(Cell_Address obstacle) {
  const bool is_cell = obstacle.row <= maximum_rows && obstacle.column <= maximum_columns;
  return is_cell ? Address_Text(obstacle) + " isn't blank." : "the worksheet ends before.";
}

}  // namespace

void Calculate(const Workbook& workbook, cls_Quorvex& engine, Calculation& calculation,
               Explain explain) {
  Sheet_References references(workbook, calculation);
  Outcome outcome = With_Outer_Handler(
      [&] {
        return Outcome_For(calculation, Evaluate(engine, calculation.formula, references, explain));
      },
      [](const Run_Time_Failure& failure) { return Failed(failure.what()); });
  if (!outcome.problem) outcome.problem = references.problem();
  calculation.spill = std::move(outcome.spill);
  if (calculation.obstacle && calculation.spill.kind() == HostValue::Kind::array) {
    outcome.value = Error_Code::value;
    outcome.problem = Cell_Problem{Cell_Problem::Kind::spill,
                                   "The formula gives several values, and there is no room for "
                                   "them: " +
                                       Obstacle_Text(*calculation.obstacle)};
  }
  calculation.value = std::move(outcome.value);
  calculation.problem.reset();
  calculation.notes.reset();
  if (!outcome.notes.empty()) {
    calculation.notes = std::make_unique<std::vector<std::string>>(std::move(outcome.notes));
  }
  if (outcome.problem) {
    calculation.problem = std::make_unique<Cell_Problem>(std::move(*outcome.problem));
  }
}

}  // namespace quorvex
