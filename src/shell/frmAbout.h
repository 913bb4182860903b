// The About dialog.
#pragma once

#include <memory>
#include <string>

#include "host/export.h"
#include "shell/controls.h"

namespace quorvex {

class QUORVEX_API frmAbout {
 public:
  frmAbout();

  /// Brings the default limit up to date with the stored one. Fails with type_mismatch or overflow
  /// for a stored text that is no number.
  void Load();
  bool is_loaded() const { return is_loaded_; }

  /// Shows the default limit as it stands.
  void Show_Default();

  /// Shows the other dialog.
  void cmdMaxSD_Click();
  /// Unloads the form.
  void cmdOK_Click();

  std::string Caption;
  Label lblMaxSD;
  Command_Button cmdMaxSD{"Set Default Max SD"};
  Command_Button cmdOK{"OK"};
  Rich_Text_Box RichTextBox1;

 private:
  bool is_loaded_ = false;
};

/// The one instance that there is; made, but not loaded, where there is none. It lives until its
/// button unloads it, or as long as it is held.
QUORVEX_API std::shared_ptr<frmAbout> Default_frmAbout();

}  // namespace quorvex
