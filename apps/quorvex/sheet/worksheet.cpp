#include "sheet/worksheet.h"

#include <stdexcept>
#include <utility>

#include "formula/evaluate.h"
#include "formula/literals.h"
#include "host/conversions.h"
#include "host/platform.h"

namespace quorvex {

namespace {

std::optional<HostValue> Typed_Number(std::string_view typed) {
  const std::string& separator = Current_Separators().decimal();
  const bool negative = typed.starts_with('-');
  const std::string_view number = typed.substr(negative ? 1 : 0);
  const std::size_t length = Number_Length(number, separator);
  if (length == 0 || length != number.size()) return std::nullopt;
  return Number_Value(number, negative, separator);
}

HostValue Typed_Constant(std::string_view typed) {
  if (typed.starts_with('\'')) return typed.substr(1);
  if (Same_Word(typed, "TRUE")) return true;
  if (Same_Word(typed, "FALSE")) return false;
  const auto error = Leading_Error(typed);
  if (error && Error_Text(*error).size() == typed.size()) return *error;
  if (auto number = Typed_Number(typed)) return std::move(*number);
  return typed;
}

void Require_Cell(Cell_Address address) {
  if (address.row < 1 || address.row > maximum_rows || address.column < 1 ||
      address.column > maximum_columns) {
    throw std::out_of_range("There is no such cell on a worksheet.");
  }
}

const HostValue& Blank() {
  static const HostValue blank = HostValue::Empty();
  return blank;
}

}  // namespace

void Worksheet::set(Cell_Address address, std::string_view typed) {
  if (typed.empty()) return clear(address);
  if (typed.starts_with('=')) return set_formula(address, typed);
  HostValue constant = Typed_Constant(typed);
  Cell& cell = cell_at(address);
  cell = {};
  cell.typed = typed;
  cell.constant = std::move(constant);
}

void Worksheet::set_text(Cell_Address address, std::string text) {
  Cell& cell = cell_at(address);
  cell = {};
  cell.constant = HostValue(text);
  cell.typed = std::move(text);
}

void Worksheet::set_formula(Cell_Address address, std::string_view typed) {
  Cell cell;
  cell.typed = typed;
  try {
    auto calculation = std::make_unique<Calculation>();
    calculation->formula = Parse_Formula(typed);
    calculation->sheet = this;
    calculation->address = address;
    cell.calculation = std::move(calculation);
  } catch (const Syntax_Error& error) {
    cell.constant = Error_Code::name;
    cell.problem = std::make_unique<Cell_Problem>(
        Cell_Problem{Cell_Problem::Kind::syntax, error.what(), error.position()});
  }
  cell_at(address) = std::move(cell);
}

void Worksheet::clear(Cell_Address address) {
  Require_Cell(address);
  if (cells_.erase(address) == 0) return;
  const auto count = cells_in_column_.find(address.column);
  if (--count->second == 0) cells_in_column_.erase(count);
}

bool Worksheet::advise(Cell_Address address, std::string_view advice) {
  const auto found = cells_.find(address);
  if (found == cells_.end() || !found->second.problem) return false;
  found->second.problem->message += advice;
  return true;
}

Cell& Worksheet::cell_at(Cell_Address address) {
  Require_Cell(address);
  // Files fill a worksheet row by row, so the end is the likely place.
  const std::size_t before = cells_.size();
  const auto place = cells_.try_emplace(cells_.end(), address);
  if (cells_.size() > before) ++cells_in_column_[address.column];
  return place->second;
}

const Cell* Worksheet::find(Cell_Address address) const {
  const auto found = cells_.find(address);
  return found == cells_.end() ? nullptr : &found->second;
}

void Worksheet::mark_stale(Cell_Address address) {
  const auto found = cells_.find(address);
  if (found != cells_.end() && found->second.calculation) found->second.calculation->stale = true;
}

std::string_view Worksheet::typed(Cell_Address address) const {
  const Cell* cell = find(address);
  return cell == nullptr ? std::string_view() : cell->typed;
}

const HostValue& Worksheet::value(Cell_Address address) const {
  const Cell* cell = find(address);
  return cell == nullptr ? Blank() : cell->value();
}

std::string Worksheet::shown(Cell_Address address) const {
  const Cell* cell = find(address);
  return cell == nullptr ? std::string() : Shown_Value(*cell);
}

const Cell_Problem* Worksheet::problem(Cell_Address address) const {
  const Cell* cell = find(address);
  return cell == nullptr ? nullptr : cell->trouble();
}

std::optional<Cell_Area> Worksheet::used_range() const {
  if (cells_.empty()) return std::nullopt;
  return Cell_Area{{cells_.begin()->first.row, cells_in_column_.begin()->first},
                   {cells_.rbegin()->first.row, cells_in_column_.rbegin()->first}};
}

void Worksheet::define_name(std::string_view name, std::string_view refers_to) {
  if (!Is_Valid_Name(name)) {
    throw std::invalid_argument("\"" + std::string(name) +
                                "\" can't be a name: a name is one word of letters, digits, \"_\" "
                                "and \".\", and neither like a cell nor a function.");
  }
  Defined_Name definition;
  definition.name = name;
  definition.refers_to = refers_to.starts_with('=') ? "" : "=";
  definition.refers_to += refers_to;
  definition.calculation = std::make_unique<Calculation>();
  definition.calculation->formula = Parse_Formula(refers_to);
  definition.calculation->sheet = this;
  definition.calculation->name = name;
  names_.insert_or_assign(To_Capitals(name), std::move(definition));
}

const Defined_Name* Worksheet::find_name(std::string_view name) const {
  const auto found = names_.find(To_Capitals(name));
  return found == names_.end() ? nullptr : &found->second;
}

bool Cell::has_failed() const {
  return trouble() != nullptr || ((calculation || spilled_from) && Is_Error(value()));
}

std::string Shown_Value(const Cell& cell) {
  const Cell_Problem* problem = cell.trouble();
  if (problem != nullptr && problem->kind == Cell_Problem::Kind::circular) return "#CIRCULAR!";
  if (problem != nullptr && problem->kind == Cell_Problem::Kind::spill) return "#SPILL!";
  return Render(cell.value());
}

}  // namespace quorvex
