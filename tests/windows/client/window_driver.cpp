#include "window_driver.h"

#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

constexpr int polls = 1000;
constexpr DWORD poll_delay = 10;  // milliseconds

struct Wanted {
  std::wstring title;
  HWND found = nullptr;
};

std::wstring Text_Of(HWND window) {
  DWORD_PTR length = 0;
  if (::SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length) == 0)
    return {};
  std::wstring text(length + 1, L'\0');
  DWORD_PTR used = 0;
  ::SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 2000, &used);
  text.resize(used);
  return text;
}

BOOL CALLBACK Look_At(HWND window, LPARAM parameter) {
  auto& wanted = *reinterpret_cast<Wanted*>(parameter);
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  wchar_t kind[16];
  ::GetClassNameW(window, kind, 16);
  // Message boxes and dialogs are of the same kind.
  if (process != ::GetCurrentProcessId() || std::wstring_view(kind) != L"#32770" ||
      ::IsWindowVisible(window) == 0 || Text_Of(window) != wanted.title)
    return TRUE;
  wanted.found = window;
  return FALSE;
}

}  // namespace

HWND Await_Window(const std::string& title) {
  Wanted wanted{Wide_Text(title)};
  for (int i = 0; i < polls && wanted.found == nullptr; ++i) {
    ::EnumWindows(&Look_At, reinterpret_cast<LPARAM>(&wanted));
    if (wanted.found == nullptr) ::Sleep(poll_delay);
  }
  return wanted.found;
}

bool Await_Gone(HWND window) {
  for (int i = 0; i < polls; ++i) {
    if (::IsWindow(window) == 0 || ::IsWindowVisible(window) == 0) return true;
    ::Sleep(poll_delay);
  }
  return false;
}

void Press(HWND window, int id) {
  ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(window, id)));
}

std::function<void()> Press_In(const std::string& title, int id) {
  return [=] {
    HWND const window = Await_Window(title);
    if (window == nullptr) return;
    Press(window, id);
    Await_Gone(window);
  };
}

std::string Text_Of(HWND window, int id) {
  return Narrow_Text(Text_Of(::GetDlgItem(window, id)));
}

std::string Texts_Of(HWND window) {
  std::string texts;
  for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
       child = ::GetWindow(child, GW_HWNDNEXT))
    texts += Narrow_Text(Text_Of(child)) + "\n";
  return texts;
}

}  // namespace quorvex::windows
