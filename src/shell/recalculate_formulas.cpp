#include "shell/recalculate_formulas.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "frame/class/add_in.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "shell/passing_over.h"

namespace quorvex {
namespace {

constexpr std::string_view prefix = "QVX";

bool Contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

// Visits what a collection holds. A failure on the way ends the visit, since it can't be told
// whether there is a next one.
template <typename Get_Items, typename Visit>
void For_Each(Get_Items&& get_items, Visit&& visit) {
  Pass_Over_Failures([&] {
    const auto items = get_items();
    while (const auto item = items->next()) {
      Yield();
      visit(*item);
    }
  });
}

/// The names, in capitals, that refer to something with a function of the add-in. They are looked
/// up once for all cells.
std::vector<std::string> Names_Of_Functions(Host_Workbook& workbook) {
  std::vector<std::string> names;
  For_Each([&] { return workbook.Names(); },
           [&](Host_Name& name) {
             Pass_Over_Failures([&] {
               if (Contains(To_Capitals(name.RefersTo()), prefix))
                 names.push_back(To_Capitals(name.Name()));
             });
           });
  return names;
}

bool Is_Flagged(const std::string& formula, const std::vector<std::string>& names) {
  const std::string capitals = To_Capitals(formula);
  return Contains(capitals, prefix) || std::ranges::any_of(names, [&](const std::string& name) {
           return Contains(capitals, name);
         });
}

void Recalculate_Cell(Host_Cell& cell, const std::vector<std::string>& names) {
  Pass_Over_Failures([&] {
    const std::string formula = cell.formula();
    if (Is_Flagged(formula, names)) cell.set_formula(formula);
  });
}

}  // namespace

void Recalculate_Formulas() {
  const auto application = Excel_App(nullptr, false);
  if (application == nullptr) return;
  For_Each([&] { return application->Workbooks(); },
           [](Host_Workbook& workbook) {
             const auto names = Names_Of_Functions(workbook);
             For_Each([&] { return workbook.worksheets(); },
                      [&](Host_Worksheet& sheet) {
                        For_Each([&] { return sheet.UsedRange()->Cells(); },
                                 [&](Host_Cell& cell) { Recalculate_Cell(cell, names); });
                      });
           });
}

}  // namespace quorvex
