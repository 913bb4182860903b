// A workbook: worksheets by name, and their recalculation.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "sheet/worksheet.h"

namespace quorvex {

/// Told how many formulas of all are calculated, after each of them.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

class Workbook {
 public:
  /// Throws `std::invalid_argument` if there is a worksheet of that name, or the name is empty.
  Worksheet& add(std::string name);
  /// Looked up without regard to case; null if there is none.
  Worksheet* find(std::string_view name) const;
  /// In the order in which they were added.
  const std::vector<std::unique_ptr<Worksheet>>& worksheets() const { return worksheets_; }

  /// Calculates every formula, after those that it depends on; all of them again where the array of
  /// one has filled other cells with new values. Cells on a circular reference
  /// get a problem that spells it out; a method's failure makes the cell #VALUE!, with its message
  /// as the problem. A host that breaks the calculation off (`Run_Time_Failure` 18, let through)
  /// leaves values as they were in the cells not yet reached; calculating again mends them.
  void recalculate(cls_Quorvex& engine, const Progress& progress = {});

  /// The same for the formulas alone that were set or marked stale since they were calculated, for
  /// the names that these use, and for all that depends on any of them.
  void update(cls_Quorvex& engine, const Progress& progress = {});

 private:
  enum class Extent { everything, stale };

  void calculate(cls_Quorvex& engine, const Progress& progress, Extent extent);

  std::vector<std::unique_ptr<Worksheet>> worksheets_;
};

}  // namespace quorvex
