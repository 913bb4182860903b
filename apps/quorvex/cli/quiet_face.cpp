// Forms and questions where nobody is there to see them.
#include "cli/quiet_face.h"

#include <memory>
#include <utility>

#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"

namespace quorvex {

namespace {

std::shared_ptr<Form_Face>& Face_In_Use() {
  static std::shared_ptr<Form_Face> face;
  return face;
}

}  // namespace

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

void Use_Face(std::shared_ptr<Form_Face> face) {
  Face_In_Use() = face;
  Set_Form_Face(std::move(face));
}

Closed_Forms::Closed_Forms()
    : face_(Face_In_Use()),
      box_(std::exchange(Current_Platform().message_box, std::make_shared<Quiet_Box>())) {
  Use_Face(std::make_shared<Quiet_Face>());
}

Closed_Forms::~Closed_Forms() {
  Use_Face(face_);
  Current_Platform().message_box = box_;
}

void Show_No_Forms() {
  Use_Face(std::make_shared<Quiet_Face>());
  Current_Platform().message_box = std::make_shared<Quiet_Box>();
}

}  // namespace quorvex
