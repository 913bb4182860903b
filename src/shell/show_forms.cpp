// Forms before the user's eyes. About leads to the other form, which refreshes About: what joins
// the two stands here, above both.
#include "shell/show_forms.h"

#include "frame/class/add_in.h"
#include "host/platform.h"
#include "shell/form_face.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "shell/shell_state.h"

namespace quorvex {

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

// Says that a form is shown as long as it is in scope.
class Showing {
 public:
  Showing() { ++Shell().forms_shown; }
  ~Showing() { --Shell().forms_shown; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;
};

// The form is held, since its buttons let it go.
template <typename Form>
void Show(const std::shared_ptr<Form> form) {
  if (!form->is_loaded()) form->Load();
  const Showing showing;
  Face()->show(*form);
}

}  // namespace

void Show_About() {
  Show(Default_frmAbout());
}

void Show_MaxSD() {
  Show(Default_frmMaxSD());
}

void frmAbout::cmdMaxSD_Click() {
  Show_MaxSD();
}

}  // namespace quorvex
