#include "sheet/precedents.h"

#include "host/platform.h"

namespace quorvex {

Worksheet* Sheet_Meant(const Workbook& workbook, const Calculation& calculation,
                       const std::string& sheet) {
  return sheet.empty() ? calculation.sheet : workbook.find(sheet);
}

Calculation* Name_Meant(const Workbook& workbook, const Calculation& calculation,
                        const Name_Use& use) {
  const Worksheet* sheet = Sheet_Meant(workbook, calculation, use.sheet);
  const Defined_Name* name = sheet == nullptr ? nullptr : sheet->find_name(use.name);
  return name == nullptr ? nullptr : name->calculation.get();
}

Calculation* Precedents::next() {
  do {
    if (Calculation* found = next_in_area()) return found;
  } while (open_next_area());
  return next_name();
}

bool Precedents::open_next_area() {
  const auto& references = calculation_->formula.references;
  while (references_seen_ < references.size()) {
    const Reference& reference = references[references_seen_++];
    sheet_ = Sheet_Meant(*workbook_, *calculation_, reference.sheet);
    if (sheet_ == nullptr) continue;
    area_ = reference.area;
    at_ = sheet_->cells().lower_bound(area_.first);
    return true;
  }
  return false;
}

Calculation* Precedents::next_in_area() {
  if (sheet_ == nullptr) return nullptr;
  const auto& cells = sheet_->cells();
  std::size_t steps = 0;
  while (at_ != cells.end() && !(area_.last < at_->first)) {
    if (++steps % 4096 == 0) Yield();
    const auto [row, column] = at_->first;
    if (column < area_.first.column) {
      at_ = cells.lower_bound({row, area_.first.column});
    } else if (column > area_.last.column) {
      at_ = cells.lower_bound({row + 1, area_.first.column});
    } else {
      const Cell& cell = at_->second;
      ++at_;
      if (cell.calculation) return cell.calculation.get();
      if (!cell.spilled_from) continue;
      const auto from = cells.find(*cell.spilled_from);
      if (from != cells.end() && from->second.calculation) return from->second.calculation.get();
    }
  }
  sheet_ = nullptr;
  return nullptr;
}

Calculation* Precedents::next_name() {
  const auto& names = calculation_->formula.names;
  while (names_seen_ < names.size()) {
    const Name_Use& use = names[names_seen_++];
    if (Calculation* name = Name_Meant(*workbook_, *calculation_, use)) return name;
  }
  return nullptr;
}

}  // namespace quorvex
