#include "shell/frmAbout.h"

#include "frame/class/add_in.h"
#include "host/conversions.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"
#include "text/options.h"

namespace quorvex {

frmAbout::frmAbout() {
  RichTextBox1.Text =
      "Arithmetic on decimal numbers of any length, in the cells of a spreadsheet. Numbers are "
      "text, so that no digit is lost; every function takes the limit of significant digits that "
      "its result may have, and without one uses the default below.";
}

void frmAbout::Load() {
  Refresh_Default_MaxSD();
  Show_Default();
  Caption = "About Quorvex " + std::string(add_in_version);
  is_loaded_ = true;
}

void frmAbout::Show_Default() {
  lblMaxSD.Caption = "Default Max SD:\n" + Number_To_Text(Default_MaxSD());
}

void frmAbout::cmdOK_Click() {
  is_loaded_ = false;
  if (Shell().about.get() == this) Shell().about.reset();
}

std::shared_ptr<frmAbout> Default_frmAbout() {
  Shell_State& shell = Shell();
  if (shell.about == nullptr) shell.about = std::make_shared<frmAbout>();
  return shell.about;
}

}  // namespace quorvex
