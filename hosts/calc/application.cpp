// The open spreadsheets of the office, as far as recalculation looks at them.
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XArrayFormulaTokens.hpp>
#include <com/sun/star/sheet/XCellAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/run_time_failure.h"
#include "office.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using namespace com::sun::star;

template <typename Item>
class Collected final : public Host_Items<Item> {
 public:
  explicit Collected(std::vector<std::shared_ptr<Item>> items) : items_(std::move(items)) {}
  std::shared_ptr<Item> next() override {
    return place_ < items_.size() ? items_[place_++] : nullptr;
  }

 private:
  std::vector<std::shared_ptr<Item>> items_;
  std::size_t place_ = 0;
};

// What the office refuses is a failure as the engine knows them.
template <typename Body>
auto Asked(const Body& body) -> decltype(body()) {
  try {
    return body();
  } catch (const uno::Exception& exception) {
    throw Run_Time_Failure(Failure_Number::invalid_call, To_Utf8(exception.Message));
  }
}

class Cell_Of_Office final : public Host_Cell {
 public:
  Cell_Of_Office(uno::Reference<sheet::XSpreadsheet> sheet, uno::Reference<table::XCell> cell)
      : sheet_(std::move(sheet)), cell_(std::move(cell)) {}

  std::string formula() override {
    return Asked([&] { return To_Utf8(cell_->getFormula()); });
  }

  // A cell of an array formula can't be written alone: the whole array is, once, by its first cell.
  // As tokens, since as text it is read and written in different languages.
  void set_formula(std::string_view formula) override {
    Asked([&] {
      const auto array = Array_Around();
      if (!array.is()) return cell_->setFormula(To_Utf16(formula));
      if (!Begins_Here(array)) return;
      const uno::Reference<sheet::XArrayFormulaTokens> tokens(array, uno::UNO_QUERY_THROW);
      tokens->setArrayTokens(tokens->getArrayTokens());
    });
  }

 private:
  uno::Reference<sheet::XArrayFormulaRange> Array_Around() {
    const uno::Reference<sheet::XSheetCellRange> alone(cell_, uno::UNO_QUERY_THROW);
    const auto cursor = sheet_->createCursorByRange(alone);
    const uno::Reference<sheet::XArrayFormulaRange> array(cursor, uno::UNO_QUERY_THROW);
    if (array->getArrayFormula().isEmpty()) return {};
    cursor->collapseToCurrentArray();
    return array;
  }

  bool Begins_Here(const uno::Reference<sheet::XArrayFormulaRange>& array) {
    const uno::Reference<sheet::XCellRangeAddressable> area(array, uno::UNO_QUERY_THROW);
    const uno::Reference<sheet::XCellAddressable> here(cell_, uno::UNO_QUERY_THROW);
    const table::CellRangeAddress range = area->getRangeAddress();
    const table::CellAddress cell = here->getCellAddress();
    return range.StartRow == cell.Row && range.StartColumn == cell.Column;
  }

  uno::Reference<sheet::XSpreadsheet> sheet_;
  uno::Reference<table::XCell> cell_;
};

// The cells that hold formulas: what else is there has nothing to calculate.
class Used_Range final : public Host_Range {
 public:
  explicit Used_Range(uno::Reference<sheet::XSpreadsheet> sheet) : sheet_(std::move(sheet)) {}

  std::unique_ptr<Host_Items<Host_Cell>> Cells() override {
    return Asked([&] {
      const uno::Reference<sheet::XCellRangesQuery> query(sheet_, uno::UNO_QUERY_THROW);
      const auto found = query->queryContentCells(sheet::CellFlags::FORMULA);
      const auto cells = found->getCells()->createEnumeration();
      std::vector<std::shared_ptr<Host_Cell>> items;
      while (cells->hasMoreElements()) {
        uno::Reference<table::XCell> cell(cells->nextElement(), uno::UNO_QUERY_THROW);
        items.push_back(std::make_shared<Cell_Of_Office>(sheet_, std::move(cell)));
      }
      return std::make_unique<Collected<Host_Cell>>(std::move(items));
    });
  }

 private:
  uno::Reference<sheet::XSpreadsheet> sheet_;
};

class Worksheet_Of_Office final : public Host_Worksheet {
 public:
  explicit Worksheet_Of_Office(uno::Reference<sheet::XSpreadsheet> sheet)
      : sheet_(std::move(sheet)) {}

  std::shared_ptr<Host_Range> UsedRange() override {
    const uno::Reference<util::XProtectable> protection(sheet_, uno::UNO_QUERY);
    if (protection.is() && protection->isProtected()) {
      throw Run_Time_Failure(Failure_Number::invalid_call, "The sheet is protected.");
    }
    return std::make_shared<Used_Range>(sheet_);
  }

 private:
  uno::Reference<sheet::XSpreadsheet> sheet_;
};

class Name_Of_Office final : public Host_Name {
 public:
  explicit Name_Of_Office(uno::Reference<sheet::XNamedRange> name) : name_(std::move(name)) {}
  std::string Name() override {
    return Asked([&] {
      const uno::Reference<container::XNamed> named(name_, uno::UNO_QUERY_THROW);
      return To_Utf8(named->getName());
    });
  }
  std::string RefersTo() override {
    return Asked([&] { return To_Utf8(name_->getContent()); });
  }

 private:
  uno::Reference<sheet::XNamedRange> name_;
};

class Workbook_Of_Office final : public Host_Workbook {
 public:
  explicit Workbook_Of_Office(uno::Reference<sheet::XSpreadsheetDocument> document)
      : document_(std::move(document)) {}

  std::unique_ptr<Host_Items<Host_Worksheet>> worksheets() override {
    return Asked([&] {
      const uno::Reference<container::XIndexAccess> sheets(document_->getSheets(),
                                                           uno::UNO_QUERY_THROW);
      std::vector<std::shared_ptr<Host_Worksheet>> items;
      for (sal_Int32 place = 0; place < sheets->getCount(); ++place) {
        uno::Reference<sheet::XSpreadsheet> sheet(sheets->getByIndex(place), uno::UNO_QUERY_THROW);
        items.push_back(std::make_shared<Worksheet_Of_Office>(std::move(sheet)));
      }
      return std::make_unique<Collected<Host_Worksheet>>(std::move(items));
    });
  }

  std::unique_ptr<Host_Items<Host_Name>> Names() override {
    return Asked([&] {
      std::vector<std::shared_ptr<Host_Name>> items;
      const uno::Reference<beans::XPropertySet> properties(document_, uno::UNO_QUERY_THROW);
      Collect(properties, items);
      // Names can belong to a sheet alone.
      const uno::Reference<container::XIndexAccess> sheets(document_->getSheets(),
                                                           uno::UNO_QUERY_THROW);
      for (sal_Int32 place = 0; place < sheets->getCount(); ++place) {
        Collect(
            uno::Reference<beans::XPropertySet>(sheets->getByIndex(place), uno::UNO_QUERY_THROW),
            items);
      }
      return std::make_unique<Collected<Host_Name>>(std::move(items));
    });
  }

 private:
  static void Collect(const uno::Reference<beans::XPropertySet>& owner,
                      std::vector<std::shared_ptr<Host_Name>>& items) {
    const uno::Reference<container::XNameAccess> names(owner->getPropertyValue("NamedRanges"),
                                                       uno::UNO_QUERY_THROW);
    const uno::Sequence<rtl::OUString> all = names->getElementNames();
    for (const rtl::OUString& name : all) {
      uno::Reference<sheet::XNamedRange> range(names->getByName(name), uno::UNO_QUERY_THROW);
      items.push_back(std::make_shared<Name_Of_Office>(std::move(range)));
    }
  }

  uno::Reference<sheet::XSpreadsheetDocument> document_;
};

// The office is told of the functions by the extension's configuration, so there is nothing to
// register.
class Application_Of_Office final : public Host_Application {
 public:
  explicit Application_Of_Office(const Context& context) : context_(context) {}

  std::string version() override { return "0"; }
  void set_DisplayAlerts(bool /*on*/) override {}
  void set_ScreenUpdating(bool /*on*/) override {}
  std::unique_ptr<Host_Items<Host_Add_In>> addins() override {
    return std::make_unique<Collected<Host_Add_In>>(std::vector<std::shared_ptr<Host_Add_In>>());
  }
  void MacroOptions(const HostValue& /*macro*/, const HostValue& /*description*/,
                    const HostValue& /*has_menu*/, const HostValue& /*menu_text*/,
                    const HostValue& /*has_shortcut_key*/, const HostValue& /*shortcut_key*/,
                    const HostValue& /*category*/) override {}

  std::unique_ptr<Host_Items<Host_Workbook>> Workbooks() override {
    return Asked([&] {
      const auto components =
          frame::Desktop::create(context_)->getComponents()->createEnumeration();
      std::vector<std::shared_ptr<Host_Workbook>> items;
      while (components->hasMoreElements()) {
        uno::Reference<sheet::XSpreadsheetDocument> document(components->nextElement(),
                                                             uno::UNO_QUERY);
        if (document.is()) {
          items.push_back(std::make_shared<Workbook_Of_Office>(std::move(document)));
        }
      }
      return std::make_unique<Collected<Host_Workbook>>(std::move(items));
    });
  }

 private:
  Context context_;
};

}  // namespace

std::shared_ptr<Host_Application> Office_Application(const Context& context) {
  return std::make_shared<Application_Of_Office>(context);
}

}  // namespace quorvex::calc
