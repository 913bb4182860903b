#include "sheet/workbook.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/conversions.h"

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

}  // namespace quorvex
