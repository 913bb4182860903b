// The dialogs, driven as a person drives them.
#include <gtest/gtest.h>

#include "frame/class/add_in.h"
#include "frame/class/cls_Quorvex.h"
#include "shell/form_face.h"
#include "shell/frmAbout.h"
#include "shell/frmMaxSD.h"
#include "shell/scripted_host.h"
#include "shell/shell_fixture.h"
#include "support/failures.h"

namespace quorvex {
namespace {

constexpr const char* critical = "Enter digits (0-9) only.";
constexpr const char* question =
    "Recalculate Quorvex formulas now?\n\nCaution:\nRecalculating here will only recalculate "
    "Quorvex formulas in worksheet cells and defined names. To recalculate Quorvex formulas "
    "anywhere else, close and reopen the workbook.";

class Dialogs : public Shell_Test {
 protected:
  /// The dialog, opened with this limit.
  static std::shared_ptr<frmMaxSD> opened(double limit) {
    Set_Default_MaxSD(limit);
    const auto form = Default_frmMaxSD();
    form->Load();
    return form;
  }

  /// The only message so far, forgotten then.
  std::string message() {
    EXPECT_EQ(box_->messages.size(), 1U);
    if (box_->messages.empty()) return "";
    const auto shown = box_->messages.back();
    box_->messages.clear();
    EXPECT_EQ(shown.title, "Quorvex");
    EXPECT_EQ(shown.icon, Message_Icon::error);
    EXPECT_EQ(shown.buttons, Message_Buttons::ok);
    return shown.text;
  }
};

TEST_F(Dialogs, OpenWithTheLimitAndTheInsertionPointBehindIt) {
  const auto form = opened(250);
  EXPECT_EQ(form->Caption, "Set Default Max SD");
  EXPECT_EQ(form->lblMainText.Caption,
            "You can customize that default maximum number of significant digits here. The number "
            "you enter here will be used in Quorvex functions where you have omitted the "
            "maximum_significant_digits parameter.");
  EXPECT_EQ(form->txtMaxSD.Text(), "250");
  EXPECT_EQ(form->txtMaxSD.SelStart(), 3U);
  EXPECT_EQ(Default_frmMaxSD(), form);
  EXPECT_TRUE(box_->messages.empty());
}

TEST_F(Dialogs, CheckEveryChange) {
  const struct {
    std::size_t at;
    const char* keys;  // at once, as a paste
    const char* text;
    std::size_t insertion;
    const char* complaint;
  } cases[] = {
      {3, "0", "1000", 4, nullptr},
      {1, "5", "1500", 2, nullptr},
      {1, "x", "100", 1, critical},
      {3, "x", "100", 3, critical},
      {0, "-", "100", 0, critical},
      {3, ".5", "100", 3, critical},
      {1, "2\n", "100", 2, critical},
      {0, "12a34", "100", 2, critical},   // nothing of it stays
      {3, "55 5", "100", 3, critical},    // before the bad character, but no further than the end
      {3, "\u0663", "100", 3, critical},  // a digit, but none of these
      {0, "000", "000100", 3, nullptr},
      {0, "2147484", "2147483648", 10, "The maximum is 2147483648 significant digits."},
      {3, "9999999", "1009999999", 10, nullptr},
      {3, "99999999", "2147483648", 10, "The maximum is 2147483648 significant digits."},
  };
  for (const auto& c : cases) {
    // By single keys, and by a toolkit that tells what has come of them.
    for (const bool is_told : {false, true}) {
      const auto form = opened(100);
      if (is_told) {
        form->txtMaxSD.edited(std::string("100").insert(c.at, c.keys),
                              c.at + std::string_view(c.keys).size());
      } else {
        form->txtMaxSD.set_SelStart(c.at);
        form->txtMaxSD.type(c.keys);
      }
      EXPECT_EQ(form->txtMaxSD.Text(), c.text) << c.keys;
      EXPECT_EQ(form->txtMaxSD.SelStart(), c.insertion) << c.keys;
      if (c.complaint != nullptr) {
        EXPECT_EQ(message(), c.complaint) << c.keys;
      }
      EXPECT_TRUE(box_->messages.empty()) << c.keys;
    }
  }
}

TEST_F(Dialogs, TakeTheCeilingAndNothingAboveIt) {
  const auto form = opened(100);
  for (const char* fine : {"2147483648", "0", "00002147483648", ""}) {
    form->txtMaxSD.type_over(fine);
    EXPECT_EQ(form->txtMaxSD.Text(), fine);
  }
  EXPECT_TRUE(box_->messages.empty());
  for (const std::string& above : {std::string("2147483649"), std::string(1000, '9')}) {
    form->txtMaxSD.type_over(above);
    EXPECT_EQ(message(), "The maximum is 2147483648 significant digits.");
    EXPECT_EQ(form->txtMaxSD.Text(), "2147483648");
  }
  form->txtMaxSD.type("x");  // the ceiling is what a bad character leaves there
  EXPECT_EQ(message(), critical);
  EXPECT_EQ(form->txtMaxSD.Text(), "2147483648");
}

TEST_F(Dialogs, OkSetsStoresAndAsks) {
  const struct {
    const char* typed;
    double limit;
    const char* stored;
  } cases[] = {
      {"50", 50, "50"}, {"007", 7, "7"}, {"0", 0, "0"}, {"2147483648", 2147483648, "2147483648"}};
  for (const auto& c : cases) {
    const auto form = opened(100);
    form->txtMaxSD.type_over(c.typed);
    form->cmdOK_Click();
    EXPECT_EQ(Default_MaxSD(), c.limit);
    EXPECT_EQ(stored(), c.stored);
    EXPECT_EQ(Default_frmAbout()->lblMaxSD.Caption, std::string("Default Max SD:\n") + c.stored);
    EXPECT_FALSE(form->is_loaded());
    EXPECT_NE(Default_frmMaxSD(), form);
    ASSERT_EQ(box_->messages.size(), 1U);
    EXPECT_EQ(box_->messages[0].title, "Set Default Max SD");
    EXPECT_EQ(box_->messages[0].text, question);
    EXPECT_EQ(box_->messages[0].icon, Message_Icon::question);
    EXPECT_EQ(box_->messages[0].buttons, Message_Buttons::yes_no);
    box_->messages.clear();
  }
}

TEST_F(Dialogs, OkWithAnEmptyBoxFailsAndStaysOpen) {
  store("100");
  const auto form = opened(100);
  form->txtMaxSD.edited("", 0);
  EXPECT_EQ(form->txtMaxSD.Text(), "");
  EXPECT_EQ(Failure_Of([&] { form->cmdOK_Click(); }), Failure_Number::type_mismatch);
  EXPECT_EQ(Default_MaxSD(), 100);
  EXPECT_EQ(stored(), "100");
  EXPECT_TRUE(form->is_loaded());
  EXPECT_TRUE(box_->messages.empty());
}

TEST_F(Dialogs, CancelChangesNothing) {
  store("100");
  const auto form = opened(100);
  form->txtMaxSD.type_over("5");
  form->cmdCancel_Click();
  EXPECT_EQ(Default_MaxSD(), 100);
  EXPECT_EQ(stored(), "100");
  EXPECT_FALSE(form->is_loaded());
  EXPECT_TRUE(box_->messages.empty());
}

TEST_F(Dialogs, RecalculateOnYesAlone) {
  const auto cell = std::make_shared<Scripted_Cell>("=qvxADD(1,2)");
  const auto sheet = std::make_shared<Scripted_Sheet>();
  sheet->cells = {cell};
  const auto book = std::make_shared<Scripted_Workbook>();
  book->sheets = {sheet};
  const auto host = std::make_shared<Scripted_Application>();
  host->workbooks = {book};
  Excel_App(host, false);
  opened(100)->cmdOK_Click();
  EXPECT_EQ(cell->written, "");
  box_->answer = Message_Answer::yes;
  opened(100)->cmdOK_Click();
  EXPECT_EQ(cell->written, "=qvxADD(1,2)");
}

TEST_F(Dialogs, ALimitThatCantBeStoredHoldsForTheProcess) {
  Current_Platform().settings = std::make_shared<Frozen_Settings>("100");
  const auto form = opened(100);
  form->txtMaxSD.type_over("50");
  form->cmdOK_Click();
  EXPECT_EQ(Default_MaxSD(), 50);
  EXPECT_EQ(form->storing_problem(), "The disk is full.");
  EXPECT_FALSE(form->is_loaded());
}

TEST_F(Dialogs, HearOfATextOnceThatTheyHaveSetThemselves) {
  Text_Box box;
  int changes = 0;
  box.Change = [&] {
    ++changes;
    box.set_Text("7");
    box.edited("7", 9);  // as a toolkit tells of the text that it was just given
  };
  box.edited("x", 1);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(box.SelStart(), 1U) << "no further than the end";
  box.edited("7", 0);
  EXPECT_EQ(changes, 1) << "only the insertion point has moved";
  EXPECT_EQ(box.SelStart(), 0U);
}

// Remembers what it was shown, and presses the buttons that it is told to.
class Scripted_Face final : public Form_Face {
 public:
  void show(frmAbout& form) override {
    shown += form.Caption + "|" + form.lblMaxSD.Caption + "\n";
    if (sets_limit) form.cmdMaxSD_Click();
    shown += form.lblMaxSD.Caption + "\n";
    form.cmdOK_Click();
  }
  void show(frmMaxSD& form) override {
    form.txtMaxSD.type_over("42");
    form.cmdOK_Click();
  }

  std::string shown;
  bool sets_limit = false;
};

TEST_F(Dialogs, AboutShowsTheStoredLimitAndLeadsToTheOtherDialog) {
  const auto face = std::make_shared<Scripted_Face>();
  Set_Form_Face(face);
  cls_Quorvex engine;
  store("30");
  engine.qvxABOUT();
  EXPECT_EQ(face->shown, "About Quorvex 3.1|Default Max SD:\n30\nDefault Max SD:\n30\n");
  EXPECT_EQ(Default_MaxSD(), 30);
  face->shown.clear();
  face->sets_limit = true;
  engine.qvxABOUT();
  EXPECT_EQ(face->shown, "About Quorvex 3.1|Default Max SD:\n30\nDefault Max SD:\n42\n");
  EXPECT_EQ(stored(), "42");
}

TEST_F(Dialogs, AboutStoresTheLimitInForceWhereNoneIsStored) {
  cls_Quorvex engine;
  Current_Platform().settings = Settings_In_Memory();
  Set_Default_MaxSD(64);
  engine.qvxABOUT();
  EXPECT_EQ(stored(), "64");
  EXPECT_EQ(Default_MaxSD(), 64);
  // Without a toolkit it is a message.
  ASSERT_EQ(box_->messages.size(), 1U);
  EXPECT_EQ(box_->messages[0].title, "About Quorvex 3.1");
  EXPECT_NE(box_->messages[0].text.find("Default Max SD:\n64"), std::string::npos);
  store("no number");
  EXPECT_EQ(Failure_Of([&] { engine.qvxABOUT(); }), Failure_Number::type_mismatch);
  EXPECT_EQ(Default_MaxSD(), 64);
}

}  // namespace
}  // namespace quorvex
