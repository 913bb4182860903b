// The embedded spreadsheet as a host of the add-in.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "host/application.h"
#include "sheet/recalculate.h"
#include "sheet/workbook.h"

namespace quorvex {

/// What the host's function dialog shows of a macro.
struct Described_Macro {
  std::string description;
  std::string category;
};

/// An application whose workbooks are those of the embedded spreadsheet. It has one add-in,
/// "Quorvex.xla", which can be installed or not.
///
/// A cell that is written isn't calculated at once, but all of them together by `calculate`, or
/// else a chain of cells would be calculated anew with each cell of it.
class Sheet_Application final : public Host_Application {
 public:
  explicit Sheet_Application(bool is_add_in_installed = true)
      : is_add_in_installed_(is_add_in_installed) {}

  void open(std::shared_ptr<Workbook> workbook) { workbooks_.push_back(std::move(workbook)); }

  /// As if every cell were written.
  void mark_all_stale();
  /// Whether cells were written since `calculate` was last called.
  bool is_written() const { return *is_written_; }
  /// Calculates these cells and all that depends on them. Throws as `Recalculate_Stale` does, and
  /// can then be called again.
  void calculate(cls_Quorvex& engine, const Progress& progress = {});

  bool shows_alerts() const { return shows_alerts_; }
  bool updates_screen() const { return updates_screen_; }
  const std::map<std::string, Described_Macro>& macros() const { return macros_; }

  std::string version() override;
  void set_DisplayAlerts(bool on) override { shows_alerts_ = on; }
  void set_ScreenUpdating(bool on) override { updates_screen_ = on; }
  std::unique_ptr<Host_Items<Host_Add_In>> addins() override;
  std::unique_ptr<Host_Items<Host_Workbook>> Workbooks() override;
  /// Fails with number 1004 for a macro of anything but the add-in.
  void MacroOptions(const HostValue& macro, const HostValue& description, const HostValue& has_menu,
                    const HostValue& menu_text, const HostValue& has_shortcut_key,
                    const HostValue& shortcut_key, const HostValue& category) override;

 private:
  std::vector<std::shared_ptr<Workbook>> workbooks_;
  std::map<std::string, Described_Macro> macros_;
  // Shared with the cells that are handed out.
  std::shared_ptr<bool> is_written_ = std::make_shared<bool>(false);
  bool is_add_in_installed_;
  bool shows_alerts_ = true;
  bool updates_screen_ = true;
};

}  // namespace quorvex
