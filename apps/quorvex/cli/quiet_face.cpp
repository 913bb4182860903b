// Forms and questions where nobody is there to see them.
#include "cli/quiet_face.h"

#include <memory>

#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"

namespace quorvex {

Message_Answer Quiet_Box::show(std::string_view /*title*/, std::string_view /*text*/,
                               Message_Icon /*icon*/, Message_Buttons buttons) {
  return buttons == Message_Buttons::yes_no ? Message_Answer::no : Message_Answer::ok;
}

void Quiet_Face::show(frmAbout& form) {
  form.cmdOK_Click();
}

void Quiet_Face::show(frmMaxSD& form) {
  form.cmdCancel_Click();
}

void Show_No_Forms() {
  Set_Form_Face(std::make_shared<Quiet_Face>());
  Current_Platform().message_box = std::make_shared<Quiet_Box>();
}

}  // namespace quorvex
