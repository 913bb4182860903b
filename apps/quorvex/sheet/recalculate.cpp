#include "sheet/recalculate.h"

#include <algorithm>
#include <cstddef>

namespace quorvex {

namespace {

enum class Extent { everything, stale };

void Recalculate(const Workbook& workbook, cls_Quorvex& engine, const Progress& progress,
                 Extent extent) {
  // Formulas may use cells that arrays have filled only after them. Each pass settles one array of
  // a chain at least, so arrays that still move when all have had their turn move for ever.
  bool again = true;
  std::size_t most_passes = 1;
  for (std::size_t pass = 0; again && pass <= most_passes; ++pass) {
    Recalculation recalculation(workbook, engine, progress);
    extent == Extent::everything ? recalculation.run() : recalculation.run_stale();
    // What read a cell that an array has left can't be told any more.
    extent = Extent::everything;
    again = false;
    std::size_t spills = 0;
    for (const auto& sheet : workbook.worksheets()) {
      again = sheet->spill() || again;
      spills += sheet->count_spills();
    }
    most_passes = std::max(most_passes, spills + 1);
  }
  if (!again) return;
  for (const auto& sheet : workbook.worksheets()) sheet->mark_moved_spills();
}

}  // namespace

void Recalculate_All(const Workbook& workbook, cls_Quorvex& engine, const Progress& progress) {
  Recalculate(workbook, engine, progress, Extent::everything);
}

void Recalculate_Stale(const Workbook& workbook, cls_Quorvex& engine, const Progress& progress) {
  Recalculate(workbook, engine, progress, Extent::stale);
}

}  // namespace quorvex
