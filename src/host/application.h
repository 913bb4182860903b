// The host's object model, as far as start-up, registration and recalculation need it.
//
// The names are the host's. Any call may fail with a `Run_Time_Failure` that carries the host's own
// number.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/export.h"
#include "host/host_value.h"

namespace quorvex {

/// Walks a collection of the host once.
template <typename Item>
class Host_Items {
 public:
  Host_Items() = default;
  Host_Items(const Host_Items&) = delete;
  Host_Items& operator=(const Host_Items&) = delete;
  virtual ~Host_Items() = default;

  /// Null after the last one.
  virtual std::shared_ptr<Item> next() = 0;
};

/// What the objects of the host have in common.
class QUORVEX_API Host_Object {
 public:
  Host_Object() = default;
  Host_Object(const Host_Object&) = delete;
  Host_Object& operator=(const Host_Object&) = delete;
  virtual ~Host_Object();
};

class QUORVEX_API Host_Cell : public Host_Object {
 public:
  /// The text of the formula with its "=", or of the constant; empty for a blank cell.
  virtual std::string formula() = 0;
  /// Makes the host calculate the cell and what depends on it.
  virtual void set_formula(std::string_view formula) = 0;
};

class QUORVEX_API Host_Range : public Host_Object {
 public:
  virtual std::unique_ptr<Host_Items<Host_Cell>> Cells() = 0;
};

class QUORVEX_API Host_Worksheet : public Host_Object {
 public:
  virtual std::shared_ptr<Host_Range> UsedRange() = 0;
};

/// A name defined in a workbook.
class QUORVEX_API Host_Name : public Host_Object {
 public:
  virtual std::string Name() = 0;
  virtual std::string RefersTo() = 0;
};

class QUORVEX_API Host_Workbook : public Host_Object {
 public:
  virtual std::unique_ptr<Host_Items<Host_Worksheet>> worksheets() = 0;
  virtual std::unique_ptr<Host_Items<Host_Name>> Names() = 0;
};

class QUORVEX_API Host_Add_In : public Host_Object {
 public:
  virtual std::string Name() = 0;
  virtual bool installed() = 0;
};

class QUORVEX_API Host_Application : public Host_Object {
 public:
  virtual std::string version() = 0;
  virtual void set_DisplayAlerts(bool on) = 0;
  virtual void set_ScreenUpdating(bool on) = 0;
  virtual std::unique_ptr<Host_Items<Host_Add_In>> addins() = 0;
  virtual std::unique_ptr<Host_Items<Host_Workbook>> Workbooks() = 0;
  /// Describes a macro to the user. Arguments may be missing.
  virtual void MacroOptions(const HostValue& macro, const HostValue& description,
                            const HostValue& has_menu, const HostValue& menu_text,
                            const HostValue& has_shortcut_key, const HostValue& shortcut_key,
                            const HostValue& category) = 0;
};

}  // namespace quorvex
