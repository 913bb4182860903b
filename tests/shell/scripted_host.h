// A host that does as a test tells it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/application.h"
#include "host/platform.h"
#include "host/run_time_failure.h"

namespace quorvex {

[[noreturn]] inline void Fail_With(int number) {
  throw Run_Time_Failure(Failure_Number{number}, "The host refuses.");
}

template <typename Item>
class Vector_Items final : public Host_Items<Item> {
 public:
  explicit Vector_Items(std::vector<std::shared_ptr<Item>> items) : items_(std::move(items)) {}
  std::shared_ptr<Item> next() override { return at_ < items_.size() ? items_[at_++] : nullptr; }

 private:
  std::vector<std::shared_ptr<Item>> items_;
  std::size_t at_ = 0;
};

/// Each part of a host fails with the number that is set for it, until it is set to 0 again.
struct Scripted_Cell final : Host_Cell {
  explicit Scripted_Cell(std::string typed) : text(std::move(typed)) {}
  std::string formula() override {
    if (unreadable != 0) Fail_With(unreadable);
    return text;
  }
  void set_formula(std::string_view formula) override {
    if (refuses != 0) Fail_With(refuses);
    written = formula;
  }

  std::string text;
  std::string written;
  int unreadable = 0;
  int refuses = 0;
};

struct Scripted_Sheet final : Host_Worksheet,
                              Host_Range,
                              std::enable_shared_from_this<Scripted_Sheet> {
  std::shared_ptr<Host_Range> UsedRange() override {
    if (refuses != 0) Fail_With(refuses);
    return shared_from_this();
  }
  std::unique_ptr<Host_Items<Host_Cell>> Cells() override {
    return std::make_unique<Vector_Items<Host_Cell>>(
        std::vector<std::shared_ptr<Host_Cell>>(cells.begin(), cells.end()));
  }

  std::vector<std::shared_ptr<Scripted_Cell>> cells;
  int refuses = 0;
};

struct Scripted_Name final : Host_Name {
  Scripted_Name(std::string defined, std::string meaning)
      : name(std::move(defined)), refers_to(std::move(meaning)) {}
  std::string Name() override { return name; }
  std::string RefersTo() override {
    if (refers_to.empty()) Fail_With(1004);
    return refers_to;
  }

  std::string name;
  std::string refers_to;
};

struct Scripted_Workbook final : Host_Workbook {
  std::unique_ptr<Host_Items<Host_Worksheet>> worksheets() override {
    return std::make_unique<Vector_Items<Host_Worksheet>>(
        std::vector<std::shared_ptr<Host_Worksheet>>(sheets.begin(), sheets.end()));
  }
  std::unique_ptr<Host_Items<Host_Name>> Names() override {
    return std::make_unique<Vector_Items<Host_Name>>(names);
  }

  std::vector<std::shared_ptr<Scripted_Sheet>> sheets;
  std::vector<std::shared_ptr<Host_Name>> names;
};

struct Scripted_Add_In final : Host_Add_In {
  Scripted_Add_In(std::string file, bool is_on) : name(std::move(file)), is_installed(is_on) {}
  std::string Name() override { return name; }
  bool installed() override { return is_installed; }

  std::string name;
  bool is_installed;
};

struct Scripted_Application final : Host_Application {
  std::string version() override {
    ++asked;
    if (unversioned != 0) Fail_With(unversioned);
    return version_text;
  }
  void set_DisplayAlerts(bool on) override {
    if (busy != 0) Fail_With(busy);
    if (on && alerts_stay_off != 0) Fail_With(alerts_stay_off);
    alerts = on;
  }
  void set_ScreenUpdating(bool on) override { updating = on; }
  std::unique_ptr<Host_Items<Host_Add_In>> addins() override {
    if (add_ins_fail != 0) Fail_With(add_ins_fail);
    return std::make_unique<Vector_Items<Host_Add_In>>(add_ins);
  }
  std::unique_ptr<Host_Items<Host_Workbook>> Workbooks() override {
    return std::make_unique<Vector_Items<Host_Workbook>>(workbooks);
  }
  void MacroOptions(const HostValue& macro, const HostValue& description, const HostValue& has_menu,
                    const HostValue& menu_text, const HostValue& has_shortcut_key,
                    const HostValue& shortcut_key, const HostValue& category) override {
    if (macro.text() == failing_macro) Fail_With(macro_fails);
    omitted_stay_missing = omitted_stay_missing && has_menu.is_missing() &&
                           menu_text.is_missing() && has_shortcut_key.is_missing() &&
                           shortcut_key.is_missing();
    macros.push_back({macro.text(), description.text(), category.text()});
  }

  struct Macro {
    std::string name;
    std::string description;
    std::string category;
  };

  std::string version_text = "16.0";
  int unversioned = 0;
  int busy = 0;
  int alerts_stay_off = 0;
  int add_ins_fail = 0;
  std::string failing_macro;
  int macro_fails = 1004;
  std::vector<std::shared_ptr<Host_Add_In>> add_ins = {
      std::make_shared<Scripted_Add_In>("Quorvex.xla", true)};
  std::vector<std::shared_ptr<Host_Workbook>> workbooks;

  int asked = 0;
  bool alerts = true;
  bool updating = true;
  bool omitted_stay_missing = true;
  std::vector<Macro> macros;
};

/// The application that runs, or the failure with that number where none does.
struct Scripted_Source final : Application_Source {
  std::shared_ptr<Host_Application> running() override {
    ++asked;
    if (application == nullptr) Fail_With(failure);
    return application;
  }

  std::shared_ptr<Host_Application> application;
  int failure = 429;
  int asked = 0;
};

}  // namespace quorvex
