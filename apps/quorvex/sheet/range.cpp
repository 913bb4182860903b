// Ranges over the cells of a worksheet.
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "sheet/worksheet.h"

namespace quorvex {

namespace {

class Sheet_Range final : public Range {
 public:
  Sheet_Range(const Worksheet& sheet, const Cell_Area& area) : sheet_(sheet), area_(area) {}

  std::size_t rows() const override { return area_.last.row - area_.first.row + 1; }
  std::size_t columns() const override { return area_.last.column - area_.first.column + 1; }
  HostValue cell(std::size_t row, std::size_t column) const override {
    if (row < 1 || row > rows() || column < 1 || column > columns()) {
      throw Run_Time_Failure(Failure_Number::subscript_out_of_range,
                             "There is no such cell in the range " + Area_Text(area_) + ".");
    }
    return sheet_.value({area_.first.row + static_cast<std::uint32_t>(row - 1),
                         area_.first.column + static_cast<std::uint32_t>(column - 1)});
  }

  // Whole columns and rows are named for the few cells in them.
  void visit_used(const std::function<bool(const HostValue&)>& visit) const override {
    const auto& cells = sheet_.cells();
    std::size_t seen = 0;
    for (auto at = cells.lower_bound(area_.first); at != cells.end();) {
      const Cell_Address& address = at->first;
      if (address.row > area_.last.row) return;
      if (address.column < area_.first.column) {
        at = cells.lower_bound({address.row, area_.first.column});
      } else if (address.column > area_.last.column) {
        at = cells.lower_bound({address.row + 1, area_.first.column});
      } else {
        if (++seen % steps_between_yields == 0) Yield();
        if (!visit(sheet_.value(address))) return;
        ++at;
      }
    }
  }

 private:
  const Worksheet& sheet_;
  Cell_Area area_;
};

}  // namespace

HostValue Range_Of(const Worksheet& sheet, const Cell_Area& area) {
  return {std::make_shared<const Sheet_Range>(sheet, area)};
}

}  // namespace quorvex
