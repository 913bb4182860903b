// Arrays that fill the cells beside their formula.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "formula/evaluate.h"
#include "host/platform.h"
#include "sheet/worksheet.h"

namespace quorvex {

namespace {

struct Filling {
  Cell_Address from;
  HostValue value;
};

using Fillings = std::map<Cell_Address, Filling>;

bool Is_Cell(Cell_Address address) {
  return address.row <= maximum_rows && address.column <= maximum_columns;
}

// What an array puts into the cells beside its first one.
Fillings Fillings_Of(const Array& array, Cell_Address from) {
  Fillings fillings;
  for (std::size_t place = 1; place < array.values.size(); ++place) {
    const HostValue& value = array.values[place];
    const bool is_blank =
        value.is_empty() || value.is_missing() || (value.is_text() && value.text().empty());
    if (is_blank) continue;
    const Cell_Address address{from.row + static_cast<std::uint32_t>(place / array.columns),
                               from.column + static_cast<std::uint32_t>(place % array.columns)};
    fillings.insert({address, {from, value}});
  }
  return fillings;
}

bool Is_Same(const Cell& cell, const Filling& filling) {
  return cell.spilled_from == filling.from && cell.constant.kind() == filling.value.kind() &&
         Render(cell.constant) == Render(filling.value);
}

}  // namespace

void Worksheet::refill(const Calculation& calculation) {
  Yield();
  Fillings fillings = Fillings_Of(calculation.spill.array(), calculation.address);
  for (auto& [address, filling] : fillings) {
    const auto cell = cells_.find(address);
    if (cell != cells_.end() && cell->second.spilled_from == calculation.address)
      cell->second.constant = std::move(filling.value);
  }
}

bool Worksheet::spill() {
  bool changed = false;
  const auto move = [&](Cell_Address from) {
    changed = true;
    const auto cell = cells_.find(from);
    if (cell != cells_.end() && cell->second.calculation) {
      cell->second.calculation->spill_moved = true;
    }
  };
  Fillings all;
  for (auto& [from, cell] : cells_) {
    Calculation* calculation = cell.calculation.get();
    if (calculation == nullptr) continue;
    calculation->spill_moved = false;
    std::optional<Cell_Address> obstacle;
    if (calculation->spill.kind() == HostValue::Kind::array) {
      Yield();
      Fillings fillings = Fillings_Of(calculation->spill.array(), from);
      for (const auto& [address, filling] : fillings) {
        const Cell* there = find(address);
        const bool is_free = Is_Cell(address) && !all.contains(address) &&
                             (there == nullptr || there->spilled_from.has_value());
        if (!is_free && !obstacle) obstacle = address;
      }
      if (!obstacle) all.merge(fillings);
    }
    if (obstacle != calculation->obstacle) move(from);
    calculation->obstacle = obstacle;
  }

  std::vector<Cell_Address> left_over;
  for (const auto& [address, cell] : cells_) {
    if (cell.spilled_from && !all.contains(address)) left_over.push_back(address);
  }
  for (const Cell_Address address : left_over) {
    move(*cells_.at(address).spilled_from);
    clear(address);
  }
  for (auto& [address, filling] : all) {
    Cell& cell = cell_at(address);
    if (Is_Same(cell, filling)) continue;
    cell.spilled_from = filling.from;
    cell.constant = std::move(filling.value);
    move(filling.from);
  }
  return changed;
}

std::size_t Worksheet::count_spills() const {
  return static_cast<std::size_t>(std::count_if(cells_.begin(), cells_.end(), [](const auto& cell) {
    const Calculation* calculation = cell.second.calculation.get();
    return calculation != nullptr && calculation->spill.kind() == HostValue::Kind::array;
  }));
}

void Worksheet::mark_moved_spills() {
  for (auto& [address, cell] : cells_) {
    Calculation* calculation = cell.calculation.get();
    if (calculation == nullptr || !calculation->spill_moved) continue;
    calculation->value = Error_Code::reference;
    calculation->problem = std::make_unique<Cell_Problem>(
        Cell_Problem{Cell_Problem::Kind::circular,
                     "The values that the formula gives never come to rest: cells that they fill, "
                     "or leave blank, lead back to it."});
  }
}

}  // namespace quorvex
