#include "sheet/recalculation.h"

#include <algorithm>
#include <utility>

#include "host/platform.h"
#include "sheet/calculate.h"
#include "sheet/circle.h"

namespace quorvex {

void Recalculation::run() {
  collect();
  for (Calculation* calculation : all_) calculation->stale = true;
  visit_all();
}

void Recalculation::run_stale() {
  collect();
  spread_to_names();
  visit_all();
}

void Recalculation::visit_all() {
  for (Calculation* calculation : all_) {
    if (calculation->order == 0) visit_from(*calculation);
  }
}

// What an interrupted recalculation left behind is wiped out here too.
void Recalculation::collect() {
  for (const auto& sheet : workbook_.worksheets()) {
    for (const auto& [address, cell] : sheet->cells()) {
      if (cell.calculation) all_.push_back(cell.calculation.get());
    }
    for (const auto& [capitals, name] : sheet->names()) all_.push_back(name.calculation.get());
  }
  for (Calculation* calculation : all_) {
    calculation->order = 0;
    calculation->open = false;
    calculation->updated = false;
  }
}

// A name stands for its formula: whoever is calculated anew wants that calculated anew, too.
void Recalculation::spread_to_names() {
  std::vector<Calculation*> stale;
  for (Calculation* calculation : all_) {
    if (calculation->stale) stale.push_back(calculation);
  }
  while (!stale.empty()) {
    const Calculation& calculation = *stale.back();
    stale.pop_back();
    for (const Name_Use& use : calculation.formula.names) {
      Calculation* name = Name_Meant(workbook_, calculation, use);
      if (name == nullptr || std::exchange(name->stale, true)) continue;
      stale.push_back(name);
    }
  }
}

void Recalculation::visit_from(Calculation& start) {
  enter(start);
  while (!visits_.empty()) {
    if (Calculation* precedent = visits_.back().precedents.next()) {
      meet(*precedent);
    } else {
      leave();
    }
  }
}

void Recalculation::enter(Calculation& calculation) {
  calculation.order = calculation.earliest = ++entered_;
  calculation.open = true;
  waiting_.push_back(&calculation);
  visits_.push_back({&calculation, Precedents(workbook_, calculation)});
  Yield();
}

void Recalculation::meet(Calculation& precedent) {
  if (precedent.order == 0) return enter(precedent);
  Visit& visit = visits_.back();
  if (precedent.updated) visit.calculation->stale = true;
  if (!precedent.open) return;
  if (&precedent == visit.calculation) visit.needs_itself = true;
  visit.calculation->earliest = std::min(visit.calculation->earliest, precedent.order);
}

void Recalculation::leave() {
  const Calculation& calculation = *visits_.back().calculation;
  const bool needs_itself = visits_.back().needs_itself;
  visits_.pop_back();
  if (calculation.earliest == calculation.order) close_group(calculation, needs_itself);
  if (visits_.empty()) return;
  Calculation& dependent = *visits_.back().calculation;
  if (calculation.updated) dependent.stale = true;
  if (calculation.open) dependent.earliest = std::min(dependent.earliest, calculation.earliest);
}

void Recalculation::close_group(const Calculation& root, bool needs_itself) {
  std::vector<Calculation*> group;
  do {
    group.push_back(waiting_.back());
    waiting_.pop_back();
    group.back()->open = false;
    group.back()->earliest = root.order;  // tells the members of the group from all others
  } while (group.back() != &root);
  if (group.size() > 1 || needs_itself) {
    mark_circle(group);
  } else {
    calculate(*group.front());
  }
}

void Recalculation::calculate(Calculation& calculation) {
  if (calculation.stale) {
    Calculate(workbook_, engine_, calculation, workbook_.explains());
    if (calculation.spill.kind() == HostValue::Kind::array) calculation.sheet->refill(calculation);
    calculation.stale = false;
    calculation.updated = true;
  }
  count_done();
}

void Recalculation::mark_circle(const std::vector<Calculation*>& group) {
  const bool stale = std::any_of(group.begin(), group.end(),
                                 [](const Calculation* calculation) { return calculation->stale; });
  for (Calculation* calculation : group) {
    calculation->stale = false;
    calculation->updated = stale;
    calculation->value = Error_Code::reference;
    calculation->spill = {};
    calculation->problem = std::make_unique<Cell_Problem>(
        Cell_Problem{Cell_Problem::Kind::circular,
                     "circular reference: " + Circle_Text(workbook_, *calculation, group.size())});
    count_done();
  }
}

void Recalculation::count_done() {
  ++done_;
  if (progress_) progress_(done_, all_.size());
}

}  // namespace quorvex
