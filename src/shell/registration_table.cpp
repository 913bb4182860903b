#include "shell/registration_table.h"

#include <algorithm>
#include <tuple>

#include "frame/catalogue.h"
#include "frame/rows/categories.h"

namespace quorvex {
namespace {

// Macros of the workbook that no method of the class stands behind.
std::vector<Registration> Workbook_Macros() {
  return {{"qvxXLA", "Returns the version number of the Quorvex.xla file.",
           catalogue::add_in_information},
          {"More_Information",
           "The add-in's help and the function reference tell more of each function, with its "
           "arguments and examples.",
           catalogue::more_information}};
}

auto Order(const Registration& row) {
  const auto category = std::ranges::find(catalogue::categories, row.category);
  return std::tuple(category, row.place, row.macro);
}

}  // namespace

std::vector<Registration> Registration_Table() {
  std::vector<Registration> table = Workbook_Macros();
  for (const Method& method : Catalogue()) {
    if (method.category.empty()) continue;
    table.push_back({method.worksheet_name, method.description, method.category, method.place});
  }
  std::ranges::sort(table, {}, Order);
  return table;
}

}  // namespace quorvex
