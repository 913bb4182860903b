#include "sheet/workbook.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/conversions.h"
#include "sheet/recalculation.h"

namespace quorvex {

Worksheet& Workbook::add(std::string name) {
  if (name.empty()) throw std::invalid_argument("A worksheet needs a name.");
  if (find(name) != nullptr) {
    throw std::invalid_argument("There is a worksheet named \"" + name + "\" already.");
  }
  worksheets_.push_back(std::make_unique<Worksheet>(std::move(name)));
  return *worksheets_.back();
}

Worksheet* Workbook::find(std::string_view name) const {
  const std::string wanted = To_Capitals(name);
  const auto found = std::find_if(worksheets_.begin(), worksheets_.end(), [&](const auto& sheet) {
    return To_Capitals(sheet->name()) == wanted;
  });
  return found == worksheets_.end() ? nullptr : found->get();
}

void Workbook::recalculate(cls_Quorvex& engine, const Progress& progress) {
  calculate(engine, progress, Extent::everything);
}

void Workbook::update(cls_Quorvex& engine, const Progress& progress) {
  calculate(engine, progress, Extent::stale);
}

void Workbook::calculate(cls_Quorvex& engine, const Progress& progress, Extent extent) {
  // Formulas may use cells that arrays have filled only after them. Each pass settles one array of
  // a chain at least, so arrays that still move when all have had their turn move for ever.
  bool again = true;
  std::size_t most_passes = 1;
  for (std::size_t pass = 0; again && pass <= most_passes; ++pass) {
    Recalculation recalculation(*this, engine, progress);
    extent == Extent::everything ? recalculation.run() : recalculation.run_stale();
    // What read a cell that an array has left can't be told any more.
    extent = Extent::everything;
    again = false;
    std::size_t spills = 0;
    for (const auto& sheet : worksheets_) {
      again = sheet->spill() || again;
      spills += sheet->count_spills();
    }
    most_passes = std::max(most_passes, spills + 1);
  }
  if (!again) return;
  for (const auto& sheet : worksheets_) sheet->mark_moved_spills();
}

}  // namespace quorvex
