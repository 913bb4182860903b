#include "forms.h"

#include <algorithm>
#include <string>

#include "dialog.h"
#include "failures.h"
#include "host/platform.h"
#include "host/platform/windows_text.h"
#include "host/run_time_failure.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"

namespace quorvex::windows {
namespace {

enum Control : int { lblMainText = 101, lblMaxSD, txtMaxSD, cmdMaxSD, RichTextBox1 };

// The form decides what its box holds: what the user typed goes there, and what it makes of that
// comes back.
class Entry {
 public:
  Entry(Dialog& dialog, Text_Box& box) : dialog_(dialog), box_(box) {}

  void user_has_typed() {
    if (is_updating_) return;
    const std::wstring text = dialog_.text(txtMaxSD);
    const std::size_t caret = std::min(dialog_.caret(txtMaxSD), text.size());
    box_.edited(Narrow_Text(text), Narrow_Text(text.substr(0, caret)).size());
    if (box_.Text() != Narrow_Text(text)) show();
  }

  void show() {
    is_updating_ = true;
    dialog_.set_text(txtMaxSD, box_.Text());
    dialog_.set_caret(txtMaxSD, box_.SelStart());
    is_updating_ = false;
  }

 private:
  Dialog& dialog_;
  Text_Box& box_;
  bool is_updating_ = false;
};

// Says which dialog is open as long as it is in scope. Whoever shows a form that is open already
// sees the one that there is.
class Open_Dialog {
 public:
  Open_Dialog(Dialog*& place, Dialog& dialog) : place_(place) { place_ = &dialog; }
  Open_Dialog(const Open_Dialog&) = delete;
  Open_Dialog& operator=(const Open_Dialog&) = delete;
  ~Open_Dialog() { place_ = nullptr; }

 private:
  Dialog*& place_;
};

class Window_Face final : public Form_Face {
 public:
  void show(frmAbout& form) override {
    if (about_ != nullptr) return about_->bring_to_front();
    Dialog dialog(form.Caption, 230, 128);
    const Open_Dialog open(about_, dialog);
    dialog.add_rich_text(RichTextBox1, {6, 6, 218, 64}, form.RichTextBox1.Text);
    dialog.add_label(lblMaxSD, {6, 76, 140, 22}, form.lblMaxSD.Caption);
    dialog.add_button(cmdMaxSD, {6, 106, 100, 16}, form.cmdMaxSD.Caption, false);
    dialog.add_button(IDOK, {174, 106, 50, 16}, form.cmdOK.Caption, true);
    dialog.on_press = [&](int id) {
      if (id != cmdMaxSD) return dialog.close();
      form.cmdMaxSD_Click();
      if (form.is_loaded()) dialog.set_text(lblMaxSD, form.lblMaxSD.Caption);
    };
    dialog.run();
    form.cmdOK_Click();
  }

  void show(frmMaxSD& form) override {
    if (max_sd_ != nullptr) return max_sd_->bring_to_front();
    Dialog dialog(form.Caption, 230, 110);
    const Open_Dialog open(max_sd_, dialog);
    Entry entry(dialog, form.txtMaxSD);
    dialog.add_label(lblMainText, {6, 6, 218, 44}, form.lblMainText.Caption);
    dialog.add_label(lblMaxSD, {6, 58, 136, 12}, form.lblMaxSD.Caption);
    dialog.add_entry(txtMaxSD, {144, 56, 80, 14});
    dialog.add_button(IDOK, {118, 88, 50, 16}, form.cmdOK.Caption, true);
    dialog.add_button(IDCANCEL, {174, 88, 50, 16}, form.cmdCancel.Caption, false);
    dialog.start_in(txtMaxSD);
    dialog.on_screen = [&] { entry.show(); };
    dialog.on_change = [&](int) { entry.user_has_typed(); };
    dialog.on_press = [&](int id) {
      if (id != IDOK) return dialog.close();
      press_ok(form, dialog);
    };
    dialog.run();
    if (form.is_loaded()) form.cmdCancel_Click();
  }

 private:
  // An empty box keeps the dialog open.
  static void press_ok(frmMaxSD& form, Dialog& dialog) {
    Guarded([&] { form.cmdOK_Click(); });
    if (form.is_loaded()) return;
    if (form.storing_problem()) {
      Current_Platform().message_box->show(form.Caption, *form.storing_problem(),
                                           Message_Icon::error, Message_Buttons::ok);
    }
    dialog.close();
  }

  Dialog* about_ = nullptr;
  Dialog* max_sd_ = nullptr;
};

}  // namespace

std::shared_ptr<Form_Face> Window_Form_Face() {
  // One for all objects, so that it knows of the windows that others have opened.
  static const auto face = std::make_shared<Window_Face>();
  return face;
}

}  // namespace quorvex::windows
