// The formulas that a formula depends on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

#include "sheet/workbook.h"

namespace quorvex {

/// The worksheet that a formula means: its own if it names none; null if there is none such.
Worksheet* Sheet_Meant(const Workbook& workbook, const Calculation& calculation,
                       const std::string& sheet);

/// The formula of the name that a formula uses; null if there is none such.
Calculation* Name_Meant(const Workbook& workbook, const Calculation& calculation,
                        const Name_Use& use);

/// Walks the formulas that one formula depends on directly, cells and names, repeats included. It
/// touches used cells only, so a reference to whole columns costs what stands in them.
class Precedents {
 public:
  Precedents(const Workbook& workbook, const Calculation& calculation)
      : workbook_(&workbook), calculation_(&calculation) {}

  /// Null after the last one.
  Calculation* next();

 private:
  Calculation* next_in_area();
  bool open_next_area();
  Calculation* next_name();

  const Workbook* workbook_;
  const Calculation* calculation_;
  std::size_t references_seen_ = 0;
  std::size_t names_seen_ = 0;
  const Worksheet* sheet_ = nullptr;  // of the area being walked; null between areas
  Cell_Area area_;
  std::map<Cell_Address, Cell>::const_iterator at_;
};

}  // namespace quorvex
