// The dialogs, worked by messages as by a user.
#include <gtest/gtest.h>

#include "host/platform/windows_text.h"
#include "spreadsheet.h"
#include "surroundings.h"
#include "window_driver.h"

namespace quorvex::windows {
namespace {

const std::string about_title = "About Quorvex 3.1";
const std::string limit_title = "Set Default Max SD";
// The numbers of the controls, which are in the order of the dialog.
constexpr int limit_label = 102;
constexpr int entry = 103;
constexpr int to_limit = 104;
constexpr int product_text = 105;

// What was seen while the dialogs were open; looked at when they are closed.
struct Seen {
  std::vector<std::string> notes;
  void operator()(const std::string& note) { notes.push_back(note); }
};

LRESULT Send(HWND window, int id, UINT message, WPARAM first = 0, LPARAM second = 0) {
  DWORD_PTR result = 0;
  ::SendMessageTimeoutW(::GetDlgItem(window, id), message, first, second, SMTO_ABORTIFHUNG, 3000,
                        &result);
  return static_cast<LRESULT>(result);
}

void Set_Caret(HWND window, int at) {
  Send(window, entry, EM_SETSEL, static_cast<WPARAM>(at), at);
}

// As "3", or as "0..3" where something is marked.
std::string Caret(HWND window) {
  const LRESULT ends = Send(window, entry, EM_GETSEL);
  const std::string end = std::to_string(HIWORD(ends));
  return LOWORD(ends) == HIWORD(ends) ? end : std::to_string(LOWORD(ends)) + ".." + end;
}

// The control that the user is in.
int Focus(HWND window) {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &thread);
  return ::GetDlgCtrlID(thread.hwndFocus);
}

// Typing does not come back before a message that it leads to has been answered.
void Type(HWND window, char letter) {
  ::PostMessageW(::GetDlgItem(window, entry), WM_CHAR, static_cast<WPARAM>(letter), 1);
  ::Sleep(50);
}

void Fill(HWND window, const std::string& text) {
  // By the message that pasting over everything comes to.
  Send(window, entry, EM_SETSEL, 0, -1);
  for (const char letter : text)
    ::PostMessageW(::GetDlgItem(window, entry), WM_CHAR, static_cast<WPARAM>(letter), 1);
  ::Sleep(100);
}

// As a paste does: the whole text at once. It waits for the message that it leads to.
std::thread Paste(HWND window, const std::wstring& text) {
  return std::thread([=] {
    ::SendDlgItemMessageW(window, entry, EM_REPLACESEL, TRUE,
                          reinterpret_cast<LPARAM>(text.c_str()));
  });
}

// The text of a message box, which is then answered.
std::string Answer(const std::string& title, int id, HWND not_this = nullptr) {
  for (int i = 0; i < 500; ++i) {
    HWND const box = Await_Window(title);
    if (box == nullptr) return "no box";
    if (box == not_this || ::GetDlgItem(box, entry) != nullptr) {
      // The dialog has the same title as its question, which stands before it.
      HWND const popup = ::GetLastActivePopup(box);
      if (popup == box) {
        ::Sleep(10);
        continue;
      }
      const std::string texts = Texts_Of(popup);
      Press(popup, id);
      Await_Gone(popup);
      return texts;
    }
    const std::string texts = Texts_Of(box);
    Press(box, id);
    Await_Gone(box);
    return texts;
  }
  return "no box before the dialog";
}

class Dialogs : public testing::Test {
 protected:
  void SetUp() override {
    limit_.set("100");
    ASSERT_TRUE(Load_Library());
    object_ = Make_Object();
    ASSERT_TRUE(object_);
  }

  // Shows About, from which `work` goes to the other dialog.
  std::vector<std::string> show(const std::function<void(Seen&, HWND)>& work) {
    Seen seen;
    {
      const Window_Driver driver([&] {
        HWND const about = Await_Window(about_title);
        if (about == nullptr) return seen("no dialog");
        work(seen, about);
        Press(about, IDOK);
        Await_Gone(about);
      });
      EXPECT_EQ(Call_Late(*object_.get(), "qvxABOUT", {}).status, S_OK);
    }
    return seen.notes;
  }

  std::vector<std::string> show_limit(const std::function<void(Seen&, HWND)>& work) {
    return show([&](Seen& seen, HWND about) {
      Press(about, to_limit);
      HWND const dialog = Await_Window(limit_title);
      if (dialog == nullptr) return seen("no second dialog");
      work(seen, dialog);
      if (::IsWindow(dialog) != 0 && ::IsWindowVisible(dialog) != 0) {
        Press(dialog, IDCANCEL);
        Await_Gone(dialog);
      }
      seen(Text_Of(about, limit_label));
    });
  }

  double limit() { return Call_Late(*object_.get(), "qvxDEFAULTMAXSD", {}).result->dblVal; }

  Stored_Limit limit_;
  Com_Pointer<IDispatch> object_;
};

TEST_F(Dialogs, AboutShowsTheLimitAndTheProduct) {
  limit_.set("250");
  const auto seen = show([](Seen& note, HWND about) {
    note(Text_Of(about, limit_label));
    note(Text_Of(about, to_limit));
    note(Text_Of(about, IDOK));
    note(Focus(about) == IDOK ? "in OK" : "elsewhere");
    wchar_t kind[32];
    ::GetClassNameW(::GetDlgItem(about, product_text), kind, 32);
    note(Narrow_Text(kind));
    note(Text_Of(about, product_text).find("decimal numbers") != std::string::npos ? "text" : "");
    LOGFONTW font{};
    ::GetObjectW(reinterpret_cast<HFONT>(Send(about, IDOK, WM_GETFONT)), sizeof font, &font);
    note(Narrow_Text(font.lfFaceName));
  });
  EXPECT_EQ(seen, (std::vector<std::string>{"Default Max SD:\n250", "Set Default Max SD", "OK",
                                            "in OK", "RichEdit20W", "text", "Verdana"}));
}

TEST_F(Dialogs, TheLimitStandsInTheBoxWithTheCaretBehindIt) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    note(Text_Of(dialog, entry));
    note(Caret(dialog));
    note(Text_Of(dialog, limit_label));
    note(Text_Of(dialog, IDCANCEL));
    note(Text_Of(dialog, 101));
  });
  ASSERT_EQ(seen.size(), 6u);
  EXPECT_EQ(seen[0] + "|" + seen[1], "100|3");
  EXPECT_EQ(seen[2], "Default Maximum Significant Digits");
  EXPECT_EQ(seen[3], "Cancel");
  EXPECT_EQ(seen[4],
            "You can customize that default maximum number of significant digits here. The number "
            "you enter here will be used in Quorvex functions where you have omitted the "
            "maximum_significant_digits parameter.");
}

TEST_F(Dialogs, WhatIsTypedAtOnceIsAddedToTheLimit) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    note(Focus(dialog) == entry ? "in the box" : "elsewhere");
    Type(dialog, '5');
    note(Text_Of(dialog, entry) + "|" + Caret(dialog));
  });
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_EQ(seen[0], "in the box");
  EXPECT_EQ(seen[1], "1005|4");
}

TEST_F(Dialogs, ALetterIsRefusedWhereItWasTyped) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    Set_Caret(dialog, 1);
    Type(dialog, 'x');
    note(Answer("Quorvex", IDOK));
    note(Text_Of(dialog, entry) + "|" + Caret(dialog));
    Type(dialog, '7');
    note(Text_Of(dialog, entry) + "|" + Caret(dialog));
  });
  ASSERT_EQ(seen.size(), 4u);
  EXPECT_NE(seen[0].find("Enter digits (0-9) only."), std::string::npos) << seen[0];
  EXPECT_EQ(seen[1], "100|1");
  EXPECT_EQ(seen[2], "1700|2");
  EXPECT_EQ(seen[3], "Default Max SD:\n100");  // cancelled
}

TEST_F(Dialogs, APastedTextWithALetterInItIsTakenBackWhole) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    Send(dialog, entry, EM_SETSEL, 0, -1);
    std::thread paste = Paste(dialog, L"12y45");
    note(Answer("Quorvex", IDOK));
    paste.join();
    note(Text_Of(dialog, entry) + "|" + Caret(dialog));
  });
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_EQ(seen[1], "100|2");
}

TEST_F(Dialogs, MoreThanTheMaximumBecomesTheMaximum) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    Send(dialog, entry, EM_SETSEL, 0, -1);
    Paste(dialog, L"2147483648").join();
    note(Text_Of(dialog, entry));
    Send(dialog, entry, EM_SETSEL, 0, -1);
    std::thread paste = Paste(dialog, L"2147483649");
    note(Answer("Quorvex", IDOK));
    paste.join();
    note(Text_Of(dialog, entry) + "|" + Caret(dialog));
  });
  ASSERT_EQ(seen.size(), 4u);
  EXPECT_EQ(seen[0], "2147483648");
  EXPECT_NE(seen[1].find("2147483648 significant digits.\n"), std::string::npos) << seen[1];
  EXPECT_EQ(seen[2], "2147483648|10");
}

TEST_F(Dialogs, OkStoresTheLimitAndAsks) {
  for (const char* text : {"250", "0", "007"}) {
    const auto seen = show_limit([&](Seen& note, HWND dialog) {
      Fill(dialog, text);
      Press(dialog, IDOK);
      note(Answer(limit_title, IDNO, dialog));
      Await_Gone(dialog);
    });
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_NE(seen[0].find("Recalculate Quorvex formulas now?\n\nCaution:\nRecalculating here will "
                           "only recalculate Quorvex formulas in worksheet cells and defined "
                           "names."),
              std::string::npos)
        << seen[0];
    const double number = std::atof(text);
    const std::string shown = std::to_string(static_cast<int>(number));
    EXPECT_EQ(seen[1], "Default Max SD:\n" + shown);
    EXPECT_EQ(limit(), number);
    EXPECT_EQ(limit_.text(), shown);
  }
}

TEST_F(Dialogs, AnEmptyBoxKeepsTheDialogOpen) {
  const auto seen = show_limit([](Seen& note, HWND dialog) {
    Set_Caret(dialog, 3);
    for (int i = 0; i < 3; ++i) Type(dialog, '\b');
    note(Text_Of(dialog, entry) + "|");
    Press(dialog, IDOK);
    ::Sleep(200);
    note(::IsWindowVisible(dialog) != 0 ? "open" : "closed");
  });
  EXPECT_EQ(seen, (std::vector<std::string>{"|", "open", "Default Max SD:\n100"}));
  EXPECT_EQ(limit(), 100);
  EXPECT_EQ(limit_.text(), "100");
}

// A worksheet may call again while the dialog is open: it comes to the front, and no second one.
TEST_F(Dialogs, AboutIsNotShownTwice) {
  Com_Pointer<IStream> passed;
  ::CoMarshalInterThreadInterfaceInStream(IID_IDispatch, object_.get(), passed.put());
  const auto seen = show([&](Seen& note, HWND) {
    ::CoInitialize(nullptr);
    Com_Pointer<IDispatch> object;
    ::CoGetInterfaceAndReleaseStream(passed.release(), IID_IDispatch, object.put_void());
    note(object ? std::to_string(Call_Late(*object.get(), "qvxABOUT", {}).status) : "no object");
    object = {};
    ::CoUninitialize();
  });
  EXPECT_EQ(seen, std::vector<std::string>{"0"});
}

// Yes in the question makes the spreadsheet calculate every formula of the add-in.
TEST_F(Dialogs, YesRecalculatesFormulas) {
  for (const bool enumerated : {true, false}) {
    std::vector<Mock_Cell> cells = {
        {"=qvxADD(A1,1)"}, {"=A1+1"},         {"=rate*2"}, {"=QVXSIN(1)"},
        {"=qvxPI()"},      {"text with qvx"}, {""},        {"=corporate+1"}};
    cells[4].refuses = true;
    std::vector<Mock_Pointer> first;
    for (std::size_t i = 0; i < 5; ++i) first.push_back(Make_Cell(cells[i]));
    Mock_Cell locked{"=qvxE()"};
    Mock_Spreadsheet host;
    host.has_enumerators = enumerated;
    host.workbooks = {
        Make_Workbook({Make_Sheet({Make_Cell(locked)}, true, enumerated),
                       Make_Sheet(first, false, enumerated)},
                      {Make_Name("other", "=Sheet1!A1"), Make_Name("rate", "=QvxLN(2)")},
                      enumerated),
        Make_Workbook({}, {}, enumerated),
        Make_Workbook({Make_Sheet({Make_Cell(cells[5]), Make_Cell(cells[6]), Make_Cell(cells[7])},
                                  false, enumerated)},
                      {Make_Name("Rate", "=qvxE()")}, enumerated)};
    const auto application = host.application();
    Call_Late(*object_.get(), "SetExcelApp", {Object(application)});
    show_limit([&](Seen& note, HWND dialog) {
      Press(dialog, IDOK);
      note(Answer(limit_title, IDYES, dialog));
      Await_Gone(dialog);
    });
    std::string written;
    for (const Mock_Cell& cell : cells) written += std::to_string(cell.written);
    EXPECT_EQ(written, "10110101") << enumerated;
    EXPECT_EQ(locked.written, 0);
  }
}

TEST_F(Dialogs, AStoredLimitThatIsNoNumberKeepsTheClassFromStarting) {
  HRESULT status = S_OK;
  limit_.set("many");
  EXPECT_FALSE(Make_Object(&status));
  EXPECT_EQ(status, static_cast<HRESULT>(0x800A000D));
  limit_.set("1E999");
  EXPECT_FALSE(Make_Object(&status));
  EXPECT_EQ(status, static_cast<HRESULT>(0x800A0006));
  limit_.set(std::nullopt);
  EXPECT_TRUE(Make_Object(&status));
  EXPECT_EQ(limit_.text(), "100");
}

}  // namespace
}  // namespace quorvex::windows
