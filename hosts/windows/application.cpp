#include "application.h"

#include <functional>
#include <string>
#include <utility>

#include "conversion.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "late_bound.h"

namespace quorvex::windows {
namespace {

constexpr const wchar_t* spreadsheet = L"Excel.Application";

VARIANT Truth(bool on) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = VT_BOOL;
  value.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
  return value;
}

std::string Text_In(const Variant& value) {
  return To_Text(From_Variant(*value));
}

// What a collection holds, each as the adapter of its kind.
template <typename Item, typename Adapter>
class Collection final : public Host_Items<Item> {
 public:
  explicit Collection(const Late_Bound& collection) : next_(collection.items()) {}
  std::shared_ptr<Item> next() override {
    Variant item;
    return next_(item) ? std::make_shared<Adapter>(Object_In(item)) : nullptr;
  }

 private:
  std::function<bool(Variant&)> next_;
};

class Cell final : public Host_Cell {
 public:
  explicit Cell(Late_Bound object) : object_(std::move(object)) {}
  std::string formula() override { return Text_In(object_.get(L"formula")); }
  void set_formula(std::string_view formula) override {
    Variant text;
    text->bstrVal = Make_Bstr(formula);
    text->vt = VT_BSTR;
    object_.put(L"formula", *text);
  }

 private:
  Late_Bound object_;
};

class Cells_Of_Range final : public Host_Range {
 public:
  explicit Cells_Of_Range(Late_Bound object) : object_(std::move(object)) {}
  std::unique_ptr<Host_Items<Host_Cell>> Cells() override {
    return std::make_unique<Collection<Host_Cell, Cell>>(object_.object(L"Cells"));
  }

 private:
  Late_Bound object_;
};

class Worksheet final : public Host_Worksheet {
 public:
  explicit Worksheet(Late_Bound object) : object_(std::move(object)) {}
  std::shared_ptr<Host_Range> UsedRange() override {
    return std::make_shared<Cells_Of_Range>(object_.object(L"UsedRange"));
  }

 private:
  Late_Bound object_;
};

class Defined_Name final : public Host_Name {
 public:
  explicit Defined_Name(Late_Bound object) : object_(std::move(object)) {}
  std::string Name() override { return Text_In(object_.get(L"Name")); }
  std::string RefersTo() override { return Text_In(object_.get(L"RefersTo")); }

 private:
  Late_Bound object_;
};

class Workbook final : public Host_Workbook {
 public:
  explicit Workbook(Late_Bound object) : object_(std::move(object)) {}
  std::unique_ptr<Host_Items<Host_Worksheet>> worksheets() override {
    return std::make_unique<Collection<Host_Worksheet, Worksheet>>(object_.object(L"worksheets"));
  }
  std::unique_ptr<Host_Items<Host_Name>> Names() override {
    return std::make_unique<Collection<Host_Name, Defined_Name>>(object_.object(L"Names"));
  }

 private:
  Late_Bound object_;
};

class Add_In final : public Host_Add_In {
 public:
  explicit Add_In(Late_Bound object) : object_(std::move(object)) {}
  std::string Name() override { return Text_In(object_.get(L"Name")); }
  bool installed() override { return To_Boolean(From_Variant(*object_.get(L"installed"))); }

 private:
  Late_Bound object_;
};

class Application final : public Host_Application {
 public:
  explicit Application(Late_Bound object) : object_(std::move(object)) {}

  std::string version() override { return Text_In(object_.get(L"version")); }
  void set_DisplayAlerts(bool on) override { object_.put(L"DisplayAlerts", Truth(on)); }
  void set_ScreenUpdating(bool on) override { object_.put(L"ScreenUpdating", Truth(on)); }
  std::unique_ptr<Host_Items<Host_Add_In>> addins() override {
    return std::make_unique<Collection<Host_Add_In, Add_In>>(object_.object(L"addins"));
  }
  std::unique_ptr<Host_Items<Host_Workbook>> Workbooks() override {
    return std::make_unique<Collection<Host_Workbook, Workbook>>(object_.object(L"Workbooks"));
  }
  void MacroOptions(const HostValue& macro, const HostValue& description, const HostValue& has_menu,
                    const HostValue& menu_text, const HostValue& has_shortcut_key,
                    const HostValue& shortcut_key, const HostValue& category) override {
    Variant values[] = {Owned(macro),     Owned(description),      Owned(has_menu),
                        Owned(menu_text), Owned(has_shortcut_key), Owned(shortcut_key),
                        Owned(category)};
    object_.call(L"MacroOptions", {*values[0], *values[1], *values[2], *values[3], *values[4],
                                   *values[5], *values[6]});
  }

 private:
  static Variant Owned(const HostValue& value) {
    Variant made;
    *made = To_Variant(value);
    return made;
  }

  Late_Bound object_;
};

class Running final : public Application_Source {
 public:
  std::shared_ptr<Host_Application> running() override {
    CLSID kind;
    Com_Pointer<IUnknown> found;
    Com_Pointer<IDispatch> object;
    HRESULT status = ::CLSIDFromProgID(spreadsheet, &kind);
    if (SUCCEEDED(status)) status = ::GetActiveObject(kind, nullptr, found.put());
    if (SUCCEEDED(status)) status = found->QueryInterface(IID_IDispatch, object.put_void());
    if (FAILED(status))
      throw Run_Time_Failure(Failure_Number{Number_Of(status)}, "No spreadsheet is running.");
    return Application_Of(std::move(object));
  }
};

}  // namespace

std::shared_ptr<Host_Application> Application_Of(Com_Pointer<IDispatch> object) {
  return std::make_shared<Application>(Late_Bound(std::move(object)));
}

std::shared_ptr<Application_Source> Running_Application() {
  return std::make_shared<Running>();
}

}  // namespace quorvex::windows
