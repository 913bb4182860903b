// The forms of the add-in as dialogs of the office.
#include <com/sun/star/awt/Selection.hpp>

#include <algorithm>
#include <string>
#include <utility>

#include "dialog.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "office.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using namespace com::sun::star;

// The form decides what its box holds: what the user typed goes there, and what it makes of that
// comes back.
class Entry {
 public:
  Entry(Dialog& dialog, Text_Box& box) : dialog_(dialog), box_(box) {}

  void user_has_typed() {
    if (is_updating_) return;
    const auto entry = dialog_.entry("txtMaxSD");
    const rtl::OUString text = entry->getText();
    const auto caret = std::clamp<sal_Int32>(entry->getSelection().Max, 0, text.getLength());
    box_.edited(To_Utf8(text), To_Utf8(text.copy(0, caret)).size());
    if (box_.Text() != To_Utf8(text)) show();
  }

  void show() {
    is_updating_ = true;
    const auto entry = dialog_.entry("txtMaxSD");
    entry->setText(To_Utf16(box_.Text()));
    const auto caret = static_cast<sal_Int32>(box_.SelStart());
    entry->setSelection(awt::Selection(caret, caret));
    is_updating_ = false;
  }

 private:
  Dialog& dialog_;
  Text_Box& box_;
  bool is_updating_ = false;
};

class Face_Of_Office final : public Form_Face {
 public:
  explicit Face_Of_Office(const Context& context) : context_(context) {}

  void show(frmAbout& form) override {
    Dialog dialog(context_, form.Caption, 220, 120);
    dialog.add_text("RichTextBox1", {6, 6, 208, 60}, form.RichTextBox1.Text);
    dialog.add_label("lblMaxSD", {6, 72, 120, 20}, form.lblMaxSD.Caption);
    dialog.add_button("cmdMaxSD", {6, 98, 90, 16}, form.cmdMaxSD.Caption, false, [&] {
      form.cmdMaxSD_Click();
      if (form.is_loaded()) dialog.set_label("lblMaxSD", form.lblMaxSD.Caption);
    });
    dialog.add_button("cmdOK", {164, 98, 50, 16}, form.cmdOK.Caption, true,
                      [&] { dialog.close(); });
    dialog.run();
    form.cmdOK_Click();
  }

  void show(frmMaxSD& form) override {
    Dialog dialog(context_, form.Caption, 220, 104);
    Entry entry(dialog, form.txtMaxSD);
    dialog.add_label("lblMainText", {6, 6, 208, 40}, form.lblMainText.Caption);
    dialog.add_label("lblMaxSD", {6, 54, 124, 12}, form.lblMaxSD.Caption);
    dialog.add_entry("txtMaxSD", {134, 52, 80, 14}, form.txtMaxSD.Text(),
                     [&] { entry.user_has_typed(); });
    dialog.add_button("cmdOK", {108, 82, 50, 16}, form.cmdOK.Caption, true,
                      [&] { press_ok(form, dialog); });
    dialog.add_button("cmdCancel", {164, 82, 50, 16}, form.cmdCancel.Caption, false,
                      [&] { dialog.close(); });
    dialog.run([&] { entry.show(); });
    if (form.is_loaded()) form.cmdCancel_Click();
  }

 private:
  // An empty box keeps the dialog open.
  static void press_ok(frmMaxSD& form, Dialog& dialog) {
    With_Outer_Handler([&] { form.cmdOK_Click(); }, [](const Run_Time_Failure&) {});
    if (form.is_loaded()) return;
    if (form.storing_problem()) {
      Current_Platform().message_box->show(form.Caption, *form.storing_problem(),
                                           Message_Icon::error, Message_Buttons::ok);
    }
    dialog.close();
  }

  Context context_;
};

}  // namespace

std::shared_ptr<Form_Face> Office_Form_Face(const Context& context) {
  return std::make_shared<Face_Of_Office>(context);
}

}  // namespace quorvex::calc
