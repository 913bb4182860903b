#include "dialog.h"

#include <algorithm>
#include <cstring>

#include "failures.h"
#include "host/platform/windows_text.h"
#include "module.h"
#include "shell/controls.h"

namespace quorvex::windows {
namespace {

constexpr WORD font_size = 8;
constexpr DWORD dialog_style =
    DS_SETFONT | DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU;

// The control of rich text comes in a library of its own. It stays loaded: other programs of the
// process may have begun to use it.
const wchar_t* Rich_Text_Kind() {
  static const bool is_there = ::LoadLibraryW(L"riched20.dll") != nullptr;
  return is_there ? L"RichEdit20W" : L"EDIT";
}

// Labels break lines by one character, boxes of text by two.
std::wstring With_Line_Ends(std::wstring text) {
  for (std::size_t at = 0; (at = text.find(L'\n', at)) != std::wstring::npos; at += 2)
    text.insert(at, 1, L'\r');
  return text;
}

}  // namespace

// The layout is the one that the system documents for templates in memory.
Dialog::Dialog(std::string_view title, short width, short height) {
  append_number(WORD{1});
  append_number(WORD{0xFFFF});
  append_number(DWORD{0});  // no help
  append_number(DWORD{0});  // no further style
  append_number(dialog_style);
  count_at_ = layout_.size();
  append_number(WORD{0});
  for (const short number : {short{0}, short{0}, width, height}) append_number(number);
  append(L"");  // no menu
  append(L"");  // the usual kind of window
  append(Wide_Text(title));
  append_number(font_size);
  append_number(WORD{FW_NORMAL});
  append_number(static_cast<WORD>(DEFAULT_CHARSET << 8));
  append(Wide_Text(form_font));
}

template <typename Number>
void Dialog::append_number(Number number) {
  WORD words[sizeof(Number) / sizeof(WORD)];
  std::memcpy(words, &number, sizeof number);
  for (const WORD word : words) layout_.push_back(word);
}

void Dialog::append(std::wstring_view text) {
  for (const wchar_t unit : text) layout_.push_back(static_cast<WORD>(unit));
  layout_.push_back(0);
}

void Dialog::align() {
  if (layout_.size() % 2 != 0) layout_.push_back(0);
}

void Dialog::add(int id, const Place& place, const wchar_t* kind, DWORD style,
                 std::string_view text) {
  align();
  append_number(DWORD{0});
  append_number(DWORD{0});
  append_number(style | WS_CHILD | WS_VISIBLE);
  for (const short number : {place.left, place.top, place.width, place.height})
    append_number(number);
  append_number(static_cast<DWORD>(id));
  append(kind);
  append(Wide_Text(text));
  append_number(WORD{0});  // nothing of its own
  ++layout_[count_at_];
}

void Dialog::add_label(int id, const Place& place, std::string_view text) {
  add(id, place, L"STATIC", SS_NOPREFIX, text);
}

void Dialog::add_rich_text(int id, const Place& place, std::string_view text) {
  add(id, place, Rich_Text_Kind(),
      ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
      Narrow_Text(With_Line_Ends(Wide_Text(text))));
}

void Dialog::add_entry(int id, const Place& place) {
  add(id, place, L"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, "");
}

void Dialog::add_button(int id, const Place& place, std::string_view text, bool is_default) {
  add(id, place, L"BUTTON", (is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP, text);
}

void Dialog::run() {
  align();
  ::DialogBoxIndirectParamW(This_Module(), reinterpret_cast<LPCDLGTEMPLATEW>(layout_.data()),
                            ::GetActiveWindow(), &Dialog::Handle, reinterpret_cast<LPARAM>(this));
  window_ = nullptr;
}

void Dialog::close() {
  ::EndDialog(window_, 0);
}

void Dialog::bring_to_front() {
  // What stands before it, such as a question, is what the user has to answer first.
  ::SetForegroundWindow(::GetLastActivePopup(window_));
}

std::wstring Dialog::text(int id) const {
  HWND const control = ::GetDlgItem(window_, id);
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(control)) + 1, L'\0');
  const int used = ::GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(used));
  return text;
}

void Dialog::set_text(int id, std::string_view text) {
  ::SetDlgItemTextW(window_, id, Wide_Text(text).c_str());
}

std::size_t Dialog::caret(int id) const {
  DWORD start = 0;
  DWORD end = 0;
  ::SendDlgItemMessageW(window_, id, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                        reinterpret_cast<LPARAM>(&end));
  return end;
}

void Dialog::set_caret(int id, std::size_t at) {
  ::SendDlgItemMessageW(window_, id, EM_SETSEL, at, static_cast<LPARAM>(at));
}

INT_PTR CALLBACK Dialog::Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_INITDIALOG) {
    ::SetWindowLongPtrW(window, DWLP_USER, second);
    reinterpret_cast<Dialog*>(second)->window_ = window;
  }
  auto* const dialog = reinterpret_cast<Dialog*>(::GetWindowLongPtrW(window, DWLP_USER));
  return dialog == nullptr ? FALSE : dialog->handle(message, first);
}

// A form that fails stays as it is: below this call stands the system.
INT_PTR Dialog::handle(UINT message, WPARAM first) noexcept {
  if (message == WM_INITDIALOG) {
    // Where the system chooses the control, it marks all of its text, whatever the caret was.
    ::SetFocus(::GetDlgItem(window_, first_));
    if (on_screen) Guarded([&] { on_screen(); });
    return FALSE;
  }
  if (message != WM_COMMAND) return FALSE;
  const int id = LOWORD(first);
  if (HIWORD(first) == BN_CLICKED && on_press) Guarded([&] { on_press(id); });
  if (HIWORD(first) == EN_CHANGE && on_change) Guarded([&] { on_change(id); });
  return TRUE;
}

}  // namespace quorvex::windows
