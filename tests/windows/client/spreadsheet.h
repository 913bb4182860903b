// A spreadsheet of mocks: the application object with what start-up and recalculation look at.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "automation.h"
#include "mock_host.h"

namespace quorvex::windows {

struct Mock_Spreadsheet {
  struct Macro {
    std::string name;
    std::string description;
    std::string category;
    bool others_are_omitted = false;
  };

  std::string version = "16.0";
  bool alerts = true;
  bool updating = true;
  bool is_installed = true;
  bool has_enumerators = true;
  int asked = 0;        // for its version
  int busy_times = 0;   // how often it says so before it answers
  std::string failing;  // the member that fails, with that number
  int failure = 1004;
  std::string failing_macro;
  std::vector<Macro> macros;
  std::vector<Mock_Pointer> workbooks;

  void look(const std::string& member) const {
    if (member == failing) throw Mock_Failure{failure};
  }

  VARIANT registered(const std::vector<VARIANT>& arguments) {
    look("MacroOptions");
    const std::string name = Text_In(arguments.at(0));
    if (name == failing_macro) throw Mock_Failure{failure};
    macros.push_back({name, Text_In(arguments.at(1)), Text_In(arguments.at(6)),
                      std::all_of(arguments.begin() + 2, arguments.begin() + 6, Is_Omitted)});
    return Truth(true);
  }

  Mock_Pointer add_in(const std::string& name, bool installed) {
    return Make_Mock({{"Name",
                       [this, name](auto&) {
                         look("Name");
                         return Variant_Text(name);
                       }},
                      {"installed", [this, installed](auto&) {
                         look("installed");
                         return Truth(installed);
                       }}});
  }

  Mock_Pointer application() {
    return Make_Mock(
        {{"version",
          [this](auto&) {
            ++asked;
            look("version");
            if (busy_times > 0) {
              --busy_times;
              throw Mock_Failure{50290};
            }
            return Variant_Text(version);
          }},
         {"DisplayAlerts=",
          [this](const auto& arguments) {
            look("DisplayAlerts");
            alerts = arguments.at(0).boolVal != 0;
            return VARIANT{};
          }},
         {"ScreenUpdating=",
          [this](const auto& arguments) {
            look("ScreenUpdating");
            updating = arguments.at(0).boolVal != 0;
            return VARIANT{};
          }},
         {"addins",
          [this](auto&) {
            look("addins");
            return Given(
                Make_Collection({add_in("Solver.xla", true), add_in("Quorvex.xla", is_installed)},
                                has_enumerators));
          }},
         {"Workbooks",
          [this](auto&) {
            look("Workbooks");
            return Given(Make_Collection(workbooks, has_enumerators));
          }},
         {"MacroOptions", [this](const auto& arguments) { return registered(arguments); }}});
  }

  /// A text that the caller frees.
  static VARIANT Variant_Text(const std::string& text) {
    VARIANT value;
    ::VariantInit(&value);
    value.vt = VT_BSTR;
    value.bstrVal = Make_Bstr(text);
    return value;
  }
};

struct Mock_Cell {
  std::string formula;
  int written = 0;
  bool refuses = false;
};

inline Mock_Pointer Make_Cell(Mock_Cell& cell) {
  return Make_Mock(
      {{"formula", [&cell](auto&) { return Mock_Spreadsheet::Variant_Text(cell.formula); }},
       {"formula=", [&cell](const auto& arguments) {
          if (cell.refuses) throw Mock_Failure{1004};
          if (Text_In(arguments.at(0)) == cell.formula) ++cell.written;
          return VARIANT{};
        }}});
}

inline Mock_Pointer Make_Sheet(std::vector<Mock_Pointer> cells, bool is_locked, bool enumerated) {
  const auto range =
      Make_Mock({{"Cells", [=](auto&) { return Given(Make_Collection(cells, enumerated)); }}});
  return Make_Mock({{"UsedRange", [=](auto&) {
                       if (is_locked) throw Mock_Failure{1004};
                       return Given(range);
                     }}});
}

inline Mock_Pointer Make_Name(const std::string& name, const std::string& refers_to) {
  return Make_Mock(
      {{"Name", [=](auto&) { return Mock_Spreadsheet::Variant_Text(name); }},
       {"RefersTo", [=](auto&) { return Mock_Spreadsheet::Variant_Text(refers_to); }}});
}

inline Mock_Pointer Make_Workbook(std::vector<Mock_Pointer> sheets, std::vector<Mock_Pointer> names,
                                  bool enumerated) {
  return Make_Mock(
      {{"worksheets", [=](auto&) { return Given(Make_Collection(sheets, enumerated)); }},
       {"Names", [=](auto&) { return Given(Make_Collection(names, enumerated)); }}});
}

}  // namespace quorvex::windows
