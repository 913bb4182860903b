#include "sheet/sheet_application.h"

#include <optional>
#include <utility>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "quorvex_version.h"

namespace quorvex {
namespace {

constexpr std::string_view add_in_file = "Quorvex.xla";
// What spreadsheets fail with where an object has no such thing.
constexpr Failure_Number application_error{1004};

// Objects that are handed out keep the workbook alive.
using Book = std::shared_ptr<Workbook>;
using Written = std::shared_ptr<bool>;

template <typename Item>
class Listed_Items final : public Host_Items<Item> {
 public:
  explicit Listed_Items(std::vector<std::shared_ptr<Item>> items) : items_(std::move(items)) {}
  std::shared_ptr<Item> next() override { return at_ < items_.size() ? items_[at_++] : nullptr; }

 private:
  std::vector<std::shared_ptr<Item>> items_;
  std::size_t at_ = 0;
};

class Sheet_Cell final : public Host_Cell {
 public:
  Sheet_Cell(Book book, Worksheet& sheet, Cell_Address address, Written written)
      : book_(std::move(book)), sheet_(sheet), address_(address), written_(std::move(written)) {}

  std::string formula() override { return std::string(sheet_.typed(address_)); }

  void set_formula(std::string_view formula) override {
    // What stands there already keeps its value until the new one is there.
    if (formula != sheet_.typed(address_)) sheet_.set(address_, formula);
    sheet_.mark_stale(address_);
    *written_ = true;
  }

 private:
  Book book_;
  Worksheet& sheet_;
  Cell_Address address_;
  Written written_;
};

// Blank cells of the used range have nothing to read or to calculate, and are left out. Cells may
// come and go on the way.
class Sheet_Cells final : public Host_Items<Host_Cell> {
 public:
  Sheet_Cells(Book book, Worksheet& sheet, Written written)
      : book_(std::move(book)), sheet_(sheet), written_(std::move(written)) {}

  std::shared_ptr<Host_Cell> next() override {
    const auto& cells = sheet_.cells();
    const auto place = last_ ? cells.upper_bound(*last_) : cells.begin();
    if (place == cells.end()) return nullptr;
    last_ = place->first;
    return std::make_shared<Sheet_Cell>(book_, sheet_, place->first, written_);
  }

 private:
  Book book_;
  Worksheet& sheet_;
  Written written_;
  std::optional<Cell_Address> last_;
};

class Sheet_Range final : public Host_Range {
 public:
  Sheet_Range(Book book, Worksheet& sheet, Written written)
      : book_(std::move(book)), sheet_(sheet), written_(std::move(written)) {}

  std::unique_ptr<Host_Items<Host_Cell>> Cells() override {
    return std::make_unique<Sheet_Cells>(book_, sheet_, written_);
  }

 private:
  Book book_;
  Worksheet& sheet_;
  Written written_;
};

class Sheet_Worksheet final : public Host_Worksheet {
 public:
  Sheet_Worksheet(Book book, Worksheet& sheet, Written written)
      : book_(std::move(book)), sheet_(sheet), written_(std::move(written)) {}

  std::shared_ptr<Host_Range> UsedRange() override {
    return std::make_shared<Sheet_Range>(book_, sheet_, written_);
  }

 private:
  Book book_;
  Worksheet& sheet_;
  Written written_;
};

class Sheet_Name final : public Host_Name {
 public:
  explicit Sheet_Name(const Defined_Name& name) : name_(name.name), refers_to_(name.refers_to) {}

  std::string Name() override { return name_; }
  std::string RefersTo() override { return refers_to_; }

 private:
  std::string name_;
  std::string refers_to_;
};

class Sheet_Workbook final : public Host_Workbook {
 public:
  Sheet_Workbook(Book book, Written written)
      : book_(std::move(book)), written_(std::move(written)) {}

  std::unique_ptr<Host_Items<Host_Worksheet>> worksheets() override {
    std::vector<std::shared_ptr<Host_Worksheet>> items;
    for (const auto& sheet : book_->worksheets())
      items.push_back(std::make_shared<Sheet_Worksheet>(book_, *sheet, written_));
    return std::make_unique<Listed_Items<Host_Worksheet>>(std::move(items));
  }

  std::unique_ptr<Host_Items<Host_Name>> Names() override {
    std::vector<std::shared_ptr<Host_Name>> items;
    for (const auto& sheet : book_->worksheets()) {
      for (const auto& [capitals, name] : sheet->names())
        items.push_back(std::make_shared<Sheet_Name>(name));
    }
    return std::make_unique<Listed_Items<Host_Name>>(std::move(items));
  }

 private:
  Book book_;
  Written written_;
};

class Sheet_Add_In final : public Host_Add_In {
 public:
  explicit Sheet_Add_In(bool is_installed) : is_installed_(is_installed) {}

  std::string Name() override { return std::string(add_in_file); }
  bool installed() override { return is_installed_; }

 private:
  bool is_installed_;
};

}  // namespace

void Sheet_Application::mark_all_stale() {
  for (const auto& workbook : workbooks_) {
    for (const auto& sheet : workbook->worksheets()) {
      for (const auto& [address, cell] : sheet->cells()) sheet->mark_stale(address);
    }
  }
  *is_written_ = true;
}

void Sheet_Application::calculate(cls_Quorvex& engine, const Progress& progress) {
  for (const auto& workbook : workbooks_) Recalculate_Stale(*workbook, engine, progress);
  *is_written_ = false;
}

std::string Sheet_Application::version() {
  return quorvex::version;
}

std::unique_ptr<Host_Items<Host_Add_In>> Sheet_Application::addins() {
  return std::make_unique<Listed_Items<Host_Add_In>>(std::vector<std::shared_ptr<Host_Add_In>>{
      std::make_shared<Sheet_Add_In>(is_add_in_installed_)});
}

std::unique_ptr<Host_Items<Host_Workbook>> Sheet_Application::Workbooks() {
  std::vector<std::shared_ptr<Host_Workbook>> items;
  for (const auto& workbook : workbooks_)
    items.push_back(std::make_shared<Sheet_Workbook>(workbook, is_written_));
  return std::make_unique<Listed_Items<Host_Workbook>>(std::move(items));
}

void Sheet_Application::MacroOptions(const HostValue& macro, const HostValue& description,
                                     const HostValue& /*has_menu*/, const HostValue& /*menu_text*/,
                                     const HostValue& /*has_shortcut_key*/,
                                     const HostValue& /*shortcut_key*/, const HostValue& category) {
  std::string name = To_Text(macro);
  const std::string prefix = std::string(add_in_file) + "!";
  if (!name.starts_with(prefix))
    throw Run_Time_Failure(application_error, "There is no macro \"" + name + "\".");
  macros_.insert_or_assign(name.substr(prefix.size()),
                           Described_Macro{To_Text(description), To_Text(category)});
}

}  // namespace quorvex
