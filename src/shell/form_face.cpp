#include "shell/form_face.h"

#include <utility>

#include "frame/class/add_in.h"
#include "host/platform.h"
#include "shell/shell_state.h"

namespace quorvex {

Form_Face::~Form_Face() = default;

namespace {

class Message_Face final : public Form_Face {
 public:
  void show(frmAbout& form) override {
    message(form.Caption, form.RichTextBox1.Text + "\n\n" + form.lblMaxSD.Caption);
    form.cmdOK_Click();
  }

  void show(frmMaxSD& form) override {
    message(form.Caption, form.lblMaxSD.Caption + ": " + form.txtMaxSD.Text());
    form.cmdCancel_Click();
  }

 private:
  static void message(const std::string& title, const std::string& text) {
    Current_Platform().message_box->show(title, text, Message_Icon::information,
                                         Message_Buttons::ok);
  }
};

// Held while it is at work, since it may be replaced meanwhile.
std::shared_ptr<Form_Face> Face() {
  const auto face = Shell().face;
  return face != nullptr ? face : std::make_shared<Message_Face>();
}

// The form is held, since its buttons let it go.
template <typename Form>
void Show(const std::shared_ptr<Form> form) {
  if (!form->is_loaded()) form->Load();
  Face()->show(*form);
}

}  // namespace

void Set_Form_Face(std::shared_ptr<Form_Face> face) {
  Shell().face = std::move(face);
}

void Show_About() {
  Show(Default_frmAbout());
}

void Show_MaxSD() {
  Show(Default_frmMaxSD());
}

}  // namespace quorvex
