// The dialog that sets the default limit.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/export.h"
#include "shell/controls.h"

namespace quorvex {

class QUORVEX_API frmMaxSD {
 public:
  frmMaxSD();
  frmMaxSD(const frmMaxSD&) = delete;
  frmMaxSD& operator=(const frmMaxSD&) = delete;

  /// Puts the default limit into the box.
  void Load();
  bool is_loaded() const { return is_loaded_; }

  /// Sets the default limit and stores it, offers to recalculate, and unloads the form. Fails with
  /// type_mismatch where the box is empty, and changes nothing then.
  void cmdOK_Click();
  /// Unloads the form.
  void cmdCancel_Click();

  /// Why the limit could not be stored, if it could not. The form itself says nothing of it.
  const std::optional<std::string>& storing_problem() const { return storing_problem_; }

  std::string Caption{"Set Default Max SD"};
  Label lblMainText;
  Label lblMaxSD{"Default Maximum Significant Digits"};
  Text_Box txtMaxSD;
  Command_Button cmdOK{"OK"};
  Command_Button cmdCancel{"Cancel"};

 private:
  void txtMaxSD_Change();
  void accept(const std::string& text);
  void unload();

  std::string current_;   // what the box held at the last change
  std::string accepted_;  // what a bad entry is replaced by
  std::optional<std::string> storing_problem_;
  bool is_loaded_ = false;
};

/// The one instance that there is; made, but not loaded, where there is none. It lives until its
/// buttons unload it, or as long as it is held.
QUORVEX_API std::shared_ptr<frmMaxSD> Default_frmMaxSD();

/// What is wrong with a limit as the user writes it, as the dialog says it; nothing if it is fine.
QUORVEX_API std::optional<std::string> MaxSD_Problem(const std::string& text);

}  // namespace quorvex
