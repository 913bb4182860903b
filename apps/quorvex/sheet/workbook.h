// A workbook: worksheets by name.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "formula/reasons.h"
#include "sheet/worksheet.h"

namespace quorvex {

class Workbook {
 public:
  /// Throws `std::invalid_argument` if there is a worksheet of that name, or the name is empty.
  Worksheet& add(std::string name);
  /// Looked up without regard to case; null if there is none.
  Worksheet* find(std::string_view name) const;
  /// In the order in which they were added.
  const std::vector<std::unique_ptr<Worksheet>>& worksheets() const { return worksheets_; }

  /// Whether formulas are calculated with explanations of what they give.
  Explain explains() const { return explains_; }
  void set_explains(Explain explains) { explains_ = explains; }

 private:
  Explain explains_ = Explain::no;
  std::vector<std::unique_ptr<Worksheet>> worksheets_;
};

}  // namespace quorvex
